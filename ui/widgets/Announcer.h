#pragma once

#include <QString>
#include <QWidget>

/// Announces events outside the focused control to screen readers: a part of its window that is too
/// small to be seen, which assistive technology treats as a notification that is shown again with
/// each text. User-interface thread only.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    explicit Announcer(QWidget* parent);

    /// Announces the text once. Ignores an empty text.
    void announce(const QString& text);

    /// The text announced last.
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};
