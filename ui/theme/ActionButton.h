#pragma once

#include <QPushButton>

class QLabel;

/// A push button that shows its icon and text side by side, in both layout directions, followed by
/// the key of its action if there is room. If it is too narrow for icon and text, it shows only the
/// icon. User-interface thread only.
class ActionButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionButton(QWidget* parent = nullptr);

    /// A text such as "Ctrl+A"; empty to show nothing.
    void setKeys(const QString& keys);
    [[nodiscard]] QString keys() const;

    /// Shows only the icon whenever the label beside it, in the same row, would otherwise not have
    /// room for its text in this many lines.
    /// @param label  must outlive the button
    void giveWayTo(QLabel& label, int lines);
    /// Call it when the label's text changes; changes of its size are detected.
    void fit();

    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont keysFont() const;
    /// Includes the gap before it; 0 without keys.
    [[nodiscard]] int widthOfKeys() const;
    void paintLabel(QPainter& painter, const QRect& area) const;

    QString m_keys;
    QLabel* m_label = nullptr; ///< the label that takes precedence
    int m_lines = 1;           ///< maximum number of lines of its text
};
