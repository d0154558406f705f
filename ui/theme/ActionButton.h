#pragma once

#include <QPushButton>

class QLabel;

/// A push button that shows its icon and its text side by side, in both directions of writing, and
/// the key of its action behind them where there is room. Made narrower than icon and text need,
/// it shows the icon alone. User-interface thread only.
class ActionButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionButton(QWidget* parent = nullptr);

    /// Such as "Ctrl+A"; nothing is shown where it is empty.
    void setKeys(const QString& keys);
    [[nodiscard]] QString keys() const;

    /// Shows its icon alone whenever the label beside it, in the same row, would else not have room
    /// for its text in so many lines.
    /// @param label  must outlive the button
    void giveWayTo(QLabel& label, int lines);
    /// To be called when the label says something else; that it has another size is noticed.
    void fit();

    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont keysFont() const;
    /// With the gap before it; 0 without keys.
    [[nodiscard]] int widthOfKeys() const;
    void paintLabel(QPainter& painter, const QRect& area) const;

    QString m_keys;
    QLabel* m_label = nullptr; ///< the one to give way to
    int m_lines = 1;           ///< of its text
};
