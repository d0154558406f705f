#pragma once

#include "video/FrameGrabber.h"

#include "tests/qtav/Decoding.h"

#include <QObject>

#include <optional>

/// What the tests that ask a grabber for many frames share.
namespace extraction {

/// Asks a grabber for frames and keeps its last answer.
class Extractor
{
public:
    explicit Extractor(FrameGrabber& grabber);

    /// Extracts at a position in milliseconds.
    void extract(qint64 ms);

    /// The frame of the last extraction; nothing when it failed or its frame is invalid.
    [[nodiscard]] std::optional<decoding::Shown> frame() const { return m_frame; }

    /// The last answer for messages and comparisons: "frame 5 at 200 ms", or what went wrong.
    [[nodiscard]] QString answer() const;

private:
    FrameGrabber& m_grabber;
    QObject m_context; ///< ends the connections
    std::optional<decoding::Shown> m_frame;
    QString m_problem;
};

} // namespace extraction
