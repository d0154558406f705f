#pragma once

#include <QtAV/Deadline.h>
#include <QtAV/FrameReader.h>
#include <QtAV/VideoFrame.h>

#include <QObject>
#include <QString>

#include <atomic>
#include <chrono>
#include <memory>

/// Takes single frames out of a video file at positions in milliseconds.
///
/// An extraction seeks to the last key frame at or before the target. That frame is taken when it
/// lies within the precision of the target, on either side; otherwise the grabber gives the first
/// frame at or after the target, however far behind it that is, and behind the last frame the last
/// one. Precision 0 means exact: the key frame is taken only where it is that frame. Files are
/// opened by the first extraction or question for the duration, and stay open until an extraction
/// reaches the end of the video.
///
/// Threads: everything happens in the thread that calls, and the signals are emitted there, before
/// the call returns. One thread at a time may use a grabber; only abort() may be called from any
/// other thread at any time.
class FrameGrabber : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString source READ getSource WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int precision READ getPrecision WRITE setPrecision NOTIFY precisionChanged)
    Q_PROPERTY(qint64 position READ getPosition WRITE setPosition NOTIFY positionChanged)

public:
    explicit FrameGrabber(QObject* parent = nullptr);
    ~FrameGrabber() override;

    /// The video file. Setting another one closes what is open; nothing is opened yet.
    QString getSource() const { return m_source; }
    void setSource(const QString& url);

    /// Length of the video in milliseconds, opening it if needed; 0 when it cannot be opened. A
    /// file without video is closed again and reports 0 too.
    qint64 getDuration();

    /// What the video that was opened last says of itself; nothing before one was.
    const QtAV::MediaFacts& facts() const { return m_facts; }

    /// The position in milliseconds that extract() takes. Setting one that is nearer to the
    /// current position than the precision changes nothing, nor does setting any after a file
    /// turned out to hold no video.
    qint64 getPosition() const { return m_position; }
    void setPosition(qint64 value);

    /// How far from the target, in milliseconds, a key frame may lie. A negative value lets every
    /// opening choose from the length of the video: 500 from 10 seconds up, else 250. That is
    /// also how a new grabber starts.
    int getPrecision() const { return m_precision; }
    void setPrecision(int value);

    /// What becomes of interlaced pictures, from the next extraction on.
    void setDeinterlacing(QtAV::Deinterlacing deinterlacing)
    {
        m_reader.setDeinterlacing(deinterlacing);
    }

    /// What one picture may take in memory, in bytes, from the next opening on.
    void setPictureMemory(qint64 bytes) { m_reader.setPictureMemory(bytes); }

    /// How long opening or one extraction may take; error() says so then. 0, as at first, for any
    /// time.
    void setPositionTimeout(std::chrono::milliseconds limit) { m_positionTimeout = limit; }

    /// Makes a running extraction end with aborted() at its next packet, also while the disk does
    /// not answer. Without one it does nothing, since every extraction starts by forgetting earlier
    /// requests. From any thread.
    void abort();

    /// Closes the file and gives the last frame's memory back.
    void safeReleaseResource();
    /// Closes the file; keeps the last frame unless `releaseFrame`.
    void releaseResourceInternal(bool releaseFrame);

    /// Makes the file and a decoder ready; true when they are. May change the precision.
    [[nodiscard]] bool checkAndOpen();

    /// The extraction proper, in the opened file: leaves the frame to be handed out by
    /// extractInternal().
    ///
    /// @param value   target in milliseconds
    /// @param range   tolerance in milliseconds
    /// @param err     why it failed
    /// @param aborted whether it failed because of abort()
    /// @return true when it ended well, which includes running to the end of the video: the frame
    ///         is then the last one, or an invalid one where none can be decoded.
    [[nodiscard]] bool extractInPrecision(qint64 value, int range, QString& err, bool& aborted);

public Q_SLOTS:
    /// Extracts the frame at position().
    void extract();
    /// Extracts the frame at `pos` milliseconds and emits exactly one of frameExtracted(), error()
    /// and aborted(), the first perhaps after precisionChanged().
    void extractInternal(qint64 pos);

Q_SIGNALS:
    /// An extraction ended well. The frame is invalid when nothing could be decoded up to the end.
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
