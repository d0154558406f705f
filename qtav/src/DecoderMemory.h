#pragma once

#include <QtAV/Deadline.h>

#include "qtav/src/HeldPictures.h"
#include "qtav/src/PictureLimit.h"
#include "qtav/src/StreamParameters.h"

#include <QString>

#include <memory>
#include <mutex>

namespace QtAV {

/// Gives a decoder the memory for its pictures, within limits: for one picture, and for all that
/// the decoder keeps. Refuses pictures after the deadline, too.
///
/// The decoder's threads may request memory at the same time. The other functions may be called
/// from one thread at a time, setLimit(), setDeadline(), begin() and provideFor() only while no
/// decoder uses this object.
class DecoderMemory
{
public:
    void setLimit(PictureLimit limit) { m_limit = limit; }
    /// Null for none.
    void setDeadline(std::shared_ptr<const Deadline> deadline);

    /// What one picture takes, decoded and as an image, by what the stream declares, in bytes.
    [[nodiscard]] static qint64 declaredBytes(const StreamParameters& stream);

    /// For the pictures of another stream. Returns false if those that it declares are too large.
    [[nodiscard]] bool begin(const StreamParameters& stream);

    /// Prepares a decoder of the stream, not yet opened: it takes its memory from this object,
    /// which must outlive it, and has as many threads as the limit allows.
    /// @param wantedThreads  0 for one per core.
    void provideFor(AVCodecContext& decoder, int wantedThreads);

    /// Why memory was refused most recently, as a text for people; empty if it was not. Exceeding
    /// the deadline is no reason. May be called from any thread.
    [[nodiscard]] QString refusal() const;
    void clearRefusal() { refuse(QString()); }

private:
    static int take(AVCodecContext* decoder, AVFrame* frame, int flags);
    bool allows(const QSize& stored, AVPixelFormat format, AVRational sampleAspectRatio);
    bool allowsToHold(qint64 bytes);
    void refuse(const QString& reason);

    PictureLimit m_limit;
    HeldPictures m_held;
    qint64 m_mostHeldBytes = 0;
    std::shared_ptr<const Deadline> m_deadline;
    AVRational m_statedAspectRatio{0, 1}; ///< the container's, which takes precedence; 0/1 = unset
    mutable std::mutex m_refusalMutex;
    QString m_refusal; ///< guarded by m_refusalMutex
};

} // namespace QtAV
