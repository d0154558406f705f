#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

/// Small pictures of the frames of one video, made in the background.
///
/// One thread decodes them, with a decoder of its own and only while the machine has nothing else
/// to do, so that playing goes on undisturbed. Of what is asked for only the newest is made; the
/// last pictures are kept, up to a limit of memory. A video that cannot be read gives none.
///
/// Belongs to one thread, which needs an event loop; nothing here waits for the disk, except the
/// destructor for the packet that is being read.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit Thumbnails(QObject* parent = nullptr);
    ~Thumbnails() override;

    /// The video from now on; an empty path for none. What was asked for is dropped, and so are the
    /// pictures. The file is opened with the first request.
    void setSource(const QString& path);

    /// The picture of the first frame at or after `ms` milliseconds, where it is there already;
    /// else null.
    [[nodiscard]] QImage at(qint64 ms) const;

    /// Has that picture made, unless it is there. Replaces what was asked for before.
    void request(qint64 ms);
    /// Nothing is wanted any more of what was asked for.
    void cancel();

    /// No picture is larger, in pixels.
    static constexpr QSize largest{192, 108};

Q_SIGNALS:
    /// What was asked for is there.
    void made(qint64 ms);

private:
    class Maker;

    Q_INVOKABLE void take(int source, qint64 ms, const QImage& picture);

    QCache<qint64, QImage> m_pictures; ///< by what was asked for, at a cost in bytes
    int m_source = 0;                  ///< changes with the video
    std::unique_ptr<Maker> m_maker;    ///< last: its thread calls for the others
};
