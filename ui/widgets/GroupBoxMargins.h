#pragma once

class QWidget;

/// The room that every group box of the program leaves around its contents.
namespace GroupBoxMargins {

/// Sets the contents margins of the layout of every group box inside the widget, however deep, to
/// 10 pixels on each side. To be called once the form is built; group boxes without a layout are
/// left alone. User-interface thread only.
void apply(const QWidget& widget);

} // namespace GroupBoxMargins
