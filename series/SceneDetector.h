#pragma once

#include <QImage>

/// Tells where a new scene begins, from small grey pictures of all frames in the order shown.
///
/// A cut changes the picture more than the movement before it did. What counts is therefore the
/// mean difference of the samples to the frame before, or how much that has grown since the frame
/// before, whichever is less.
class SceneDetector
{
public:
    /// The size of the pictures that are compared, in pixels.
    static constexpr QSize pictureSize{96, 54};

    /// @param picture  Format_Grayscale8, of pictureSize
    /// @return how different the frame is, 0 (the same) to 1; 0 for the first one.
    [[nodiscard]] double add(const QImage& picture);

private:
    QImage m_last;
    double m_lastDifference = 0.0;
};
