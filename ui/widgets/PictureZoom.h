#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include <optional>

/// The position of a picture on a screen: fitted, or scaled and moved. A plain value. Sizes and
/// points of the screen are in its pixels, so that a scale of 1 shows one pixel of the picture per
/// pixel of the screen.
class PictureZoom
{
public:
    /// Maximum scale. The minimum is the smaller of fitted and full size.
    static constexpr double largestScale = 16.0;

    void setPicture(const QSize& size) { m_picture = size; }
    void setScreen(const QSize& size) { m_screen = size; }
    [[nodiscard]] QSize picture() const { return m_picture; }

    [[nodiscard]] bool isFitted() const { return !m_scale; }
    /// The scale of the whole picture; 0 while the picture or the screen is empty.
    [[nodiscard]] double scale() const;

    void fit() { m_scale.reset(); }
    /// Sets the scale while keeping the point `at` of the screen fixed if possible. A scale below
    /// both that of the fitted picture and 1 fits it.
    void setScale(double scale, const QPointF& at);
    /// Moves the picture, not beyond its edges, and not while it is fitted.
    void pan(const QPointF& distance);

    /// The place of the whole picture, which may be larger than the screen. Empty without a
    /// picture.
    [[nodiscard]] QRect place() const;
    /// True if the picture is larger than the screen.
    [[nodiscard]] bool canPan() const;
    [[nodiscard]] QPointF centreOfScreen() const;

private:
    [[nodiscard]] double fittedScale() const;
    [[nodiscard]] QSize size() const;
    void keepInside();

    QSize m_picture;
    QSize m_screen;
    std::optional<double> m_scale; ///< nothing while fitted
    QPointF m_centre;              ///< the point in the middle of the screen, 0 to 1 in both
                                   ///< directions
};
