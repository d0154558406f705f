#pragma once

#include <QColor>
#include <QLabel>

/// A swatch that shows the colour chosen beside it. User-interface thread only.
class ColorLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ColorLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    /// Invalid until one is set.
    QColor colorValue() const;

    /// Stores the colour. The swatch shows it from its next repaint on, which the caller must
    /// request.
    void setColorValue(const QColor& color);

protected:
    /// Fills a rectangle at the left over the full height, without text and frame. Paints nothing
    /// for an invalid colour.
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colorValue;
};
