#include "ui/widgets/DialogSize.h"

#include <QScreen>
#include <QWidget>

namespace {

/// The title bar and the frame that a window manager adds.
constexpr QSize frame{8, 40};

} // namespace

void DialogSize::polish(const QWidget& dialog)
{
    dialog.ensurePolished();
    const auto widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        widget->ensurePolished();
    }
}

void DialogSize::open(QWidget& dialog, const QSize& letters)
{
    polish(dialog);
    const QFontMetrics metrics = dialog.fontMetrics();
    const QSize wanted(letters.width() * metrics.averageCharWidth(),
                       letters.height() * metrics.lineSpacing());
    const QSize room = dialog.screen()->availableSize() - frame;
    dialog.resize(dialog.sizeHint().expandedTo(wanted).boundedTo(room));
}
