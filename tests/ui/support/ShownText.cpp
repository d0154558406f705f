#include "tests/ui/support/ShownText.h"

#include <QTextDocument>

QString testsupport::shownText(const QString& text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}
