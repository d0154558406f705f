#pragma once

#include <QScrollArea>

/// A form that scrolls vertically if the screen is too low; it is never narrower than its widgets
/// need. The focused widget is scrolled into view. User-interface thread only.
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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int formWidth() const;
};
