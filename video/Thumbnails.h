#pragma once

#include "utils/CallQueue.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

/// Small pictures of the frames of one video, made in the background.
///
/// One thread decodes them with its own decoder, and only while the machine is otherwise idle, so
/// that playback is undisturbed. Only the newest request is carried out. The most recent pictures
/// are kept, up to a memory limit. A video that cannot be read gives none.
///
/// Belongs to one thread, which needs an event loop. No function waits for the disk, except that
/// the destructor waits for the packet being read.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit Thumbnails(QObject* parent = nullptr);
    ~Thumbnails() override;

    /// Sets the video; an empty path for none. Drops pending requests and the pictures. The first
    /// request opens the file.
    void setSource(const QString& path);

    /// The picture of the first frame at or after `ms` milliseconds if it is available; otherwise
    /// null.
    [[nodiscard]] QImage at(qint64 ms) const;

    /// Requests that picture, unless it is available. Replaces the pending request.
    void request(qint64 ms);
    /// Drops the pending request.
    void cancel();

    /// Maximum size of a picture in pixels.
    static constexpr QSize largest{192, 108};

Q_SIGNALS:
    /// The requested picture is available.
    void made(qint64 ms);

private:
    class Maker;

    void take(int source, qint64 ms, const QImage& picture);

    QCache<qint64, QImage> m_pictures; ///< by requested position, with costs in bytes
    int m_source = 0;                  ///< changes with the video
    CallQueue m_results{this};
    std::unique_ptr<Maker> m_maker; ///< last, since its thread calls the other members
};
