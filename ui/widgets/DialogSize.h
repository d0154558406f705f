#pragma once

#include <QSize>

class QWidget;

/// The initial size of dialogs. User-interface thread only.
namespace DialogSize {

/// Applies the style to all widgets of the dialog, as happens when it is shown, so that size hints
/// are valid from then on.
void polish(const QWidget& dialog);

/// Resizes the dialog to its size hint, or to this size in average letters and lines of its font if
/// that is larger, limited to its screen. Call it once the form is built.
void open(QWidget& dialog, const QSize& letters);

/// The same with a size in pixels.
void openInPixels(QWidget& dialog, const QSize& pixels);

} // namespace DialogSize
