#pragma once

#include <QFrame>

class QGridLayout;

/// The line below the video: its time, the buttons that move it, what is told of the frame, and the
/// button that takes it. All in one row where that has room for them, else in two.
///
/// The form puts four widgets into it, see the enumeration; they are its layout's to arrange. In
/// one row they stand in this order, in two the time is above with the facts beside it; so the
/// order of reading is that of the keyboard. User-interface thread only.
class TransportLine : public QFrame
{
    Q_OBJECT

public:
    explicit TransportLine(QWidget* parent = nullptr);

    /// Takes them into its layout, as its children. Once.
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
