#pragma once

#include <QFont>
#include <QLabel>

/// Names the font chosen beside it, in that font, always at one legible size. User-interface thread
/// only.
class FontLabel : public QLabel
{
    Q_OBJECT

public:
    explicit FontLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// The font as it was set, in its own size; the default font until one is set.
    QFont fontValue() const;

    /// Stores the font and names its family and size in points, as in "Courier, 24pt".
    void setFontValue(const QFont& font);

private:
    QFont m_fontValue;
};
