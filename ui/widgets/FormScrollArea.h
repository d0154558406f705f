#pragma once

#include <QScrollArea>

/// A form that scrolls vertically if the screen is too low; it is never narrower than its widgets
/// need. The focused widget is scrolled into view.
///
/// The wheel scrolls the form even over a field, unless that field has the focus: otherwise a field
/// that happens to be under the pointer would change its value. User-interface thread only.
class FormScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FormScrollArea(QWidget* parent = nullptr);

    /// The size of the whole form including the scroll bar.
    QSize sizeHint() const override;
    /// The width of the form and the height of some lines.
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int formWidth() const;
    [[nodiscard]] bool isToScroll(const QWidget& field) const;
};
