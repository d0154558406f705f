#include "ui/widgets/PlainText.h"

#include <QTextDocument>

QString asPlainText(const QString& text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    QString escaped = text.toHtmlEscaped();
    escaped.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<div style=\"white-space:pre-wrap\">%1</div>").arg(escaped);
}
