#include "tests/ui/windows/CutTexts.h"

#include "tests/ui/windows/AllWindows.h"
#include "ui/theme/ActionButton.h"

#include <QAbstractButton>
#include <QLabel>

#include <algorithm>

namespace {

/// A line may be this much higher if letters come from another font.
constexpr int anotherFont = 3;

bool hasLetters(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar sign) { return sign.isLetter(); });
}

} // namespace

QStringList testsupport::cutIn(const QWidget& window)
{
    QStringList cut;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (!widget->isVisibleTo(&window)) {
            continue;
        }
        const auto* const label = qobject_cast<const QLabel*>(widget);
        if (label != nullptr && label->wordWrap()) {
            if (label->heightForWidth(label->width()) > label->height() + anotherFont) {
                cut += nameOf(*widget);
            }
            continue;
        }
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        // Without enough room for its text, it shows its icon, and its tool tip has the text.
        if (qobject_cast<const ActionButton*>(widget) != nullptr && !button->icon().isNull()) {
            if (button->toolTip().isEmpty() &&
                button->width() < button->minimumSizeHint().width()) {
                cut += nameOf(*widget) + QStringLiteral(" has no tool tip");
            }
            continue;
        }
        const bool isText = (label != nullptr && !label->text().isEmpty()) ||
                            (button != nullptr && hasLetters(button->text()));
        const QSize wanted = widget->sizeHint();
        if (isText && (widget->width() < wanted.width() ||
                       widget->height() + anotherFont < wanted.height())) {
            cut += nameOf(*widget) + QStringLiteral(" %1x%2 of %3x%4")
                                         .arg(widget->width())
                                         .arg(widget->height())
                                         .arg(wanted.width())
                                         .arg(wanted.height());
        }
    }
    return cut;
}
