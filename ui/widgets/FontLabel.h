#pragma once

#include <QFont>
#include <QLabel>

/// Shows the name of the font chosen beside it in that font, always at one legible size.
/// User-interface thread only.
class FontLabel : public QLabel
{
    Q_OBJECT

public:
    explicit FontLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// The font that was set, in its own size; initially the default font.
    QFont fontValue() const;

    /// Stores the font and names its family and size in points, as in "Courier, 24pt".
    void setFontValue(const QFont& font);

private:
    QFont m_fontValue;
};
