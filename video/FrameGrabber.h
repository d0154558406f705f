#pragma once

#include <QtAV/Deadline.h>
#include <QtAV/FrameReader.h>
#include <QtAV/VideoFrame.h>

#include <QObject>
#include <QString>

#include <atomic>
#include <chrono>
#include <memory>

/// Extracts single frames from a video file at positions in milliseconds.
///
/// An extraction seeks to the last key frame at or before the target. If that frame lies within the
/// precision of the target, on either side, it is the result. Otherwise the result is the first
/// frame at or after the target, however far behind it that is, and for targets behind the last
/// frame the last one. Precision 0 means exact: the key frame is taken only if it is that frame.
/// The first extraction, or a call of getDuration(), opens the file, which stays open until an
/// extraction reaches the end of the video.
///
/// Threads: all work happens in the calling thread, where the signals are emitted before the call
/// returns. One thread at a time may use a grabber; only abort() may be called from any other
/// thread at any time.
class FrameGrabber : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString source READ getSource WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int precision READ getPrecision WRITE setPrecision NOTIFY precisionChanged)
    Q_PROPERTY(qint64 position READ getPosition WRITE setPosition NOTIFY positionChanged)

public:
    explicit FrameGrabber(QObject* parent = nullptr);
    ~FrameGrabber() override;

    /// The path of the video file. Setting another one closes the current file; nothing is opened
    /// yet.
    QString getSource() const { return m_source; }
    void setSource(const QString& url);

    /// Length of the video in milliseconds, opening it if needed; 0 if it cannot be opened. A file
    /// without video is closed again and also reports 0.
    qint64 getDuration();

    /// What the most recently opened video states about itself; empty before one was opened.
    const QtAV::MediaFacts& facts() const { return m_facts; }

    /// The position in milliseconds that extract() uses. Setting a position that is nearer to the
    /// current one than the precision has no effect, nor has setting any once a file turned out to
    /// hold no video.
    qint64 getPosition() const { return m_position; }
    void setPosition(qint64 value);

    /// How far from the target, in milliseconds, a key frame may lie. A negative value, the
    /// default, chooses it on each opening from the length of the video: 500 from 10 seconds up,
    /// otherwise 250.
    int getPrecision() const { return m_precision; }
    void setPrecision(int value);

    /// How interlaced pictures are treated, from the next extraction on.
    void setDeinterlacing(QtAV::Deinterlacing deinterlacing)
    {
        m_reader.setDeinterlacing(deinterlacing);
    }

    /// Memory limit for one picture in bytes, from the next opening on.
    void setPictureMemory(qint64 bytes) { m_reader.setPictureMemory(bytes); }

    /// Time limit for opening and for each extraction, which is reported by error(). 0, the initial
    /// value, means no limit.
    void setPositionTimeout(std::chrono::milliseconds limit) { m_positionTimeout = limit; }

    /// Makes a running extraction end with aborted() at its next packet, also while the disk does
    /// not answer. Has no effect on later extractions, because each one clears earlier requests.
    /// From any thread.
    void abort();

    /// Closes the file and frees the last frame.
    void safeReleaseResource();
    /// Closes the file; keeps the last frame unless `releaseFrame`.
    void releaseResourceInternal(bool releaseFrame);

    /// Opens the file and a decoder; true if that succeeded. May change the precision.
    [[nodiscard]] bool checkAndOpen();

    /// Carries out an extraction in the open file. Leaves the frame for extractInternal() to
    /// deliver.
    ///
    /// @param value   target in milliseconds
    /// @param range   tolerance in milliseconds
    /// @param err     why it failed
    /// @param aborted whether it failed because of abort()
    /// @return true on success, which includes reaching the end of the video: the frame is then the
    ///     last one, or an invalid one if none can be decoded.
    [[nodiscard]] bool extractInPrecision(qint64 value, int range, QString& err, bool& aborted);

public Q_SLOTS:
    /// Extracts the frame at position().
    void extract();
    /// Extracts the frame at `pos` milliseconds. Emits exactly one of frameExtracted(), error() and
    /// aborted(); the first may follow precisionChanged().
    void extractInternal(qint64 pos);

Q_SIGNALS:
    /// An extraction succeeded. The frame is invalid if nothing could be decoded up to the end.
    void frameExtracted(const QtAV::VideoFrame& frame);
    void sourceChanged();
    /// An extraction failed. The grabber stays usable.
    void error(const QString& errorMessage);
    /// An extraction was ended by abort(). The grabber stays usable.
    void aborted(const QString& abortMessage);
    void positionChanged();
    void precisionChanged();

private:
    struct Extraction;

    [[nodiscard]] bool open();
    void choosePrecision();
    [[nodiscard]] bool land(Extraction& extraction);
    [[nodiscard]] bool takeKeyFrame(Extraction& extraction);
    [[nodiscard]] bool takeFrame(Extraction& extraction);
    [[nodiscard]] bool isKeyFrameNearEnough(const Extraction& extraction) const;
    void logFrame(const Extraction& extraction) const;
    void logInvalidPackets(int before) const;
    bool isOverdue(Extraction& extraction) const;
    bool failed(Extraction& extraction, const QString& reason) const;
    void closeAtEnd();
    bool isAbortedAt(Extraction& extraction, const char* checkpoint) const;
    QtAV::IsCancelled isCancelled() const;

    std::atomic<bool> m_abort{false};
    std::chrono::milliseconds m_positionTimeout{0};
    const std::shared_ptr<QtAV::Deadline> m_deadline;
    bool m_hasVideo = true;
    bool m_autoPrecision = true;
    /// Extractions completed by decoding forward since the decoder was opened.
    qint32 m_seekCount = 0;
    qint64 m_position;
    qint32 m_precision;
    QString m_source;
    QtAV::FrameReader m_reader;
    QtAV::MediaFacts m_facts;
    QtAV::VideoFrame m_frame;
};
