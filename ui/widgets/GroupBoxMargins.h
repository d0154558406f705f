#pragma once

class QWidget;

/// The content margins of all group boxes of the program.
namespace GroupBoxMargins {

/// Sets the contents margins of the layout of every group box inside the widget, at any depth, to
/// 10 pixels on each side. Call it once the form is built; group boxes without a layout stay
/// unchanged. User-interface thread only.
void apply(const QWidget& widget);

} // namespace GroupBoxMargins
