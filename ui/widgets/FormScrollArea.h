#pragma once

#include <QScrollArea>

/// A form that scrolls up and down where a screen is too low for it; it is never narrower than its
/// widgets need. What gets the keyboard comes into view.
///
/// The wheel scrolls the form, also over a field, unless that has the keyboard: else a field that
/// happens to be under the pointer would get another value. User-interface thread only.
class FormScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FormScrollArea(QWidget* parent = nullptr);

    /// All of the form, with room for the scroll bar.
    QSize sizeHint() const override;
    /// As wide as the form, and some lines high.
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int formWidth() const;
    [[nodiscard]] bool isToScroll(const QWidget& field) const;
};
