#pragma once

#include <QtAV/VideoFrame.h>

#include <QImage>
#include <QRectF>
#include <QSize>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace QtAV {

/// Makes the pictures that widgets show from frames, on a thread of its own.
///
/// Only the newest request is carried out; it replaces a waiting one. All public functions must be
/// called from the owner's thread.
class PictureMaker
{
public:
    struct Request
    {
        VideoFrame frame;
        QSize size;            ///< of the picture in pixels, not empty
        QImage::Format format; ///< must be opaque
        quint64 serial;        ///< repeated by the picture
        QRectF region = {};    ///< of the frame at displaySize(); null for all of it
    };

    struct Picture
    {
        QImage image; ///< with black behind transparent parts; null when memory ran out
        quint64 serial;
        QSize frame = {};   ///< displaySize() of the frame
        QRectF region = {}; ///< as it was requested
    };

    /// @param wake  called on the maker's thread when a picture is ready. Must not call the maker.
    explicit PictureMaker(std::function<void()> wake);
    /// Waits until the current picture is done.
    ~PictureMaker();
    PictureMaker(const PictureMaker&) = delete;
    PictureMaker& operator=(const PictureMaker&) = delete;

    void request(Request request);

    /// Drops the waiting request and the picture that was not taken. The current picture is still
    /// delivered.
    void cancel();

    /// The newest picture made since the last call; nothing if there is none.
    [[nodiscard]] std::optional<Picture> take();

private:
    void run();

    const std::function<void()> m_wake;
    std::mutex m_mutex;
    // Guarded by m_mutex, down to m_quits.
    std::condition_variable m_changed;
    std::optional<Request> m_request;
    std::optional<Picture> m_picture;
    bool m_quits = false;

    std::thread m_thread; ///< last, so that all other members exist when it starts
};

} // namespace QtAV
