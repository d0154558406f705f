#pragma once

#include <QStackedWidget>
#include <QString>

class QLabel;
class QLineEdit;

/// Shows the position in a video as a label, and is a field to type another one into as soon as it
/// is clicked on or gets the keyboard.
///
/// What is typed is for the owner to judge, who takes it by finish() or marks it by refuse(): until
/// then nothing changes. Escape, and leaving the field, give the shown time back. User-interface
/// thread only.
class TimecodeField : public QStackedWidget
{
    Q_OBJECT

public:
    explicit TimecodeField(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The time as it is shown. While somebody types, it changes behind the field.
    void setTime(const QString& text);
    QString time() const;

    /// The room that the widest time takes, in pixels: so the field keeps its width.
    void setTextWidth(int width);

    /// The field is open for typing.
    bool isTyping() const;
    /// What was typed last has been refused, and not been changed since.
    bool isRefused() const;

    /// Opens the field and gives it the keyboard; what is shown is there, selected.
    void type();
    /// Shows the time again.
    void finish();
    /// Marks what was typed as wrong. It stays there to be corrected.
    void refuse();

Q_SIGNALS:
    /// The user entered a text. Nothing changes by itself.
    void entered(const QString& text);
    /// The user gave up; the time is shown again, and nothing has the keyboard.
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
