#pragma once

#include <QString>
#include <QWidget>

/// Tells those who listen to a screen reader what happens elsewhere than where the keyboard is: a
/// part of its window that is too small to be seen, and that assistive technology knows as a
/// notification which shows up anew with each text. User-interface thread only.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    explicit Announcer(QWidget* parent);

    /// Tells the text, once. An empty one is nothing to tell.
    void announce(const QString& text);

    /// What was told last.
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};
