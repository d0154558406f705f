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
    const QFontMetrics metrics = dialog.fontMetrics();
    openInPixels(dialog, {letters.width() * metrics.averageCharWidth(),
                          letters.height() * metrics.lineSpacing()});
}

void DialogSize::openInPixels(QWidget& dialog, const QSize& pixels)
{
    polish(dialog);
    const QSize room = dialog.screen()->availableSize() - frame;
    dialog.resize(dialog.sizeHint().expandedTo(pixels).boundedTo(room));
}
