#pragma once

#include <QSize>

class QWidget;

/// How large a dialog opens. User-interface thread only.
namespace DialogSize {

/// Has the style take hold of all that is in the dialog, as it does when that is shown: size hints
/// hold from then on.
void polish(const QWidget& dialog);

/// Gives the dialog the size that it asks for, or this one in average letters and lines of its font
/// where that is larger, but never more than its screen has room for. To be called once the form is
/// built.
void open(QWidget& dialog, const QSize& letters);

/// The same with a size in pixels.
void openInPixels(QWidget& dialog, const QSize& pixels);

} // namespace DialogSize
