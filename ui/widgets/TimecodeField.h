#pragma once

#include <QStackedWidget>
#include <QString>

class QLabel;
class QLineEdit;

/// Shows the position in a video as a label, which becomes a field for typing another one when it
/// is clicked or gets the focus.
///
/// The owner evaluates the typed text and calls finish() to accept it or refuse() to mark it as
/// wrong; until then nothing changes. Escape, and leaving the field, restore the shown time.
/// User-interface thread only.
class TimecodeField : public QStackedWidget
{
    Q_OBJECT

public:
    explicit TimecodeField(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Sets the shown time. During typing, it changes in the background.
    void setTime(const QString& text);
    QString time() const;

    /// Width of the widest time in pixels, so that the field keeps its width.
    void setTextWidth(int width);

    /// True while the field is open for typing.
    bool isTyping() const;
    /// True if the typed text was refused and not changed since.
    bool isRefused() const;

    /// Opens the field with the shown text selected, and gives it the focus.
    void type();
    /// Shows the time again.
    void finish();
    /// Marks the typed text as wrong; it stays there to be corrected.
    void refuse();

Q_SIGNALS:
    /// The user entered a text. Nothing else changes.
    void entered(const QString& text);
    /// The user cancelled; the time is shown again, and the field loses the focus.
    void givenUp();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void giveUp();
    void setRefused(bool isRefused);

    int m_textWidth = 0;
    QLabel* const m_label;
    QLineEdit* const m_edit;
};
