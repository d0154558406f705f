#pragma once

#include <QFrame>

class QGridLayout;

/// The line below the video: its time, the buttons that move it, the facts about the frame, and the
/// button that takes it. Uses one row if there is room for everything, otherwise two.
///
/// The form puts four widgets into it, see the enumeration; its layout arranges them. One row has
/// them in this order; with two rows, the time is above with the facts beside it. So the reading
/// order matches the tab order. User-interface thread only.
class TransportLine : public QFrame
{
    Q_OBJECT

public:
    explicit TransportLine(QWidget* parent = nullptr);

    /// Adds the widgets to its layout, as its children. Call it once.
    void setParts(QWidget& time, QWidget& buttons, QWidget& facts, QWidget& take);

    [[nodiscard]] bool isInOneRow() const;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange(bool inOneRow);
    [[nodiscard]] int widthOfOneRow() const;

    QGridLayout* m_layout;
    QWidget* m_time = nullptr;
    QWidget* m_buttons = nullptr;
    QWidget* m_facts = nullptr;
    QWidget* m_take = nullptr;
    bool m_isInOneRow = false;
};
