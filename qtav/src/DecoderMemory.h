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
/// the decoder keeps or that wait to be taken from it. Refuses pictures after the deadline, too.
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

    /// Whether a picture that the decoder has output may be used. The libraries that decode for
    /// FFmpeg allocate memory by themselves: their pictures are checked only here.
    [[nodiscard]] bool allowsOutput(const AVFrame& frame);

    /// Counts a picture that the decoder has output, and that waits for others to be taken, as one
    /// that it keeps, until HeldPictures::giveAway(). Returns false if those are too many.
    [[nodiscard]] bool keepWaiting(AVFrame& frame);

    /// Records why a library that decodes for FFmpeg refused the stream when the decoder was
    /// opened, or one of its packets, if it was for the size of the pictures.
    void explainOpening(const AVCodec& codec, const AVCodecParameters& stream);
    void explainPacket(int error, AVCodecContext& decoder, const AVPacket& packet);

    /// Why memory was refused most recently, as a text for people; empty if it was not. Exceeding
    /// the deadline is no reason. May be called from any thread.
    [[nodiscard]] QString refusal() const;
    void clearRefusal() { refuse(QString()); }

private:
    static int take(AVCodecContext* decoder, AVFrame* frame, int flags);
    bool allows(const QSize& stored, AVPixelFormat format, AVRational sampleAspectRatio);
    bool allowsToHold(qint64 bytes);
    void refuse(const QString& reason);
    bool isLate() const { return m_deadline && m_deadline->hasPassed(); }

    PictureLimit m_limit;
    HeldPictures m_held;
    qint64 m_mostHeldBytes = 0;
    std::shared_ptr<const Deadline> m_deadline;
    AVRational m_statedAspectRatio{0, 1}; ///< the container's, which takes precedence; 0/1 = unset
    mutable std::mutex m_refusalMutex;
    QString m_refusal; ///< guarded by m_refusalMutex
};

} // namespace QtAV
