#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include <optional>

/// How a picture lies on a screen: fitted into it, or at a scale of its own and moved. A plain
/// value. Sizes and points of the screen are in its pixels, so that at a scale of 1 a pixel of the
/// picture is one of the screen.
class PictureZoom
{
public:
    /// It is not enlarged beyond this, nor made smaller than fitted or full size.
    static constexpr double largestScale = 16.0;

    void setPicture(const QSize& size) { m_picture = size; }
    void setScreen(const QSize& size) { m_screen = size; }
    [[nodiscard]] QSize picture() const { return m_picture; }

    [[nodiscard]] bool isFitted() const { return !m_scale; }
    /// Of the whole picture; 0 while the picture or the screen is empty.
    [[nodiscard]] double scale() const;

    void fit() { m_scale.reset(); }
    /// Shows the picture at a scale; what lies under a point of the screen stays there where it
    /// can. A smaller one than that of the fitted picture, and than 1, fits it.
    void setScale(double scale, const QPointF& at);
    /// Moves the picture by so much; not beyond its edges, and not while it is fitted.
    void pan(const QPointF& distance);

    /// Where the whole picture lies, which may be larger than the screen. Empty while there is
    /// none.
    [[nodiscard]] QRect place() const;
    /// The picture is larger than the screen.
    [[nodiscard]] bool canPan() const;
    [[nodiscard]] QPointF centreOfScreen() const;

private:
    [[nodiscard]] double fittedScale() const;
    [[nodiscard]] QSize size() const;
    void keepInside();

    QSize m_picture;
    QSize m_screen;
    std::optional<double> m_scale; ///< nothing while it is fitted
    QPointF m_centre;              ///< what lies in the middle of the screen, 0 to 1 both ways
};
