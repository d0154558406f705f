#pragma once

#include <QImage>

/// Detects the beginning of scenes from small grey pictures of all frames in presentation order.
///
/// A cut changes the picture more than the movement before it did. The result is therefore the
/// smaller of two values: the mean difference of the samples from the previous frame, and the
/// growth of that difference since the previous frame.
class SceneDetector
{
public:
    /// The size of the compared pictures, in pixels.
    static constexpr QSize pictureSize{96, 54};

    /// @param picture  Format_Grayscale8, of pictureSize
    /// @return how much the frame differs, 0 (equal) to 1; 0 for the first one.
    [[nodiscard]] double add(const QImage& picture);

private:
    QImage m_last;
    double m_lastDifference = 0.0;
};
