#pragma once

#include "batch/FreePaths.h"
#include "imaging/FilePublisher.h"
#include "series/SeriesRunner.h"

#include <QImage>
#include <QString>
#include <QVector>

#include <functional>

/// Saves the pictures of one video's series under the names of a batch job, in order: numbers are
/// given to pictures that can be made alone, and no existing file is replaced.
///
/// Called by the engine, from several threads in turn. The functions are called there.
class SeriesSaver : public SeriesOutput
{
public:
    struct Listener
    {
        std::function<void(int pictures)> expecting;
        std::function<void()> beforePicture;
        std::function<void(QtAV::BaseLayer layer)> showing; ///< of each picture that could be made
        std::function<void(const QString& path)> saving;
        std::function<void(const WriteFailure& failure)> notSaved;
        /// There is no room for a picture: true to try again. May wait.
        std::function<bool(const WriteFailure& failure)> lacksRoom;
        std::function<void(const QImage& image)> saved;
        std::function<void(const QString& message)> failed;
    };

    SeriesSaver(FreePaths paths, bool isSingle, Listener listener);

    void announce(int video, const QVector<SeriesTarget>& targets) override;
    void begin(const SeriesFacts& facts) override;
    void take(SeriesPicture picture) override;
    void end(int video, const QString& error) override;

    /// The positions, in milliseconds and rising order, of which there is no saved picture: failed
    /// ones, and those that were not reached. After the run.
    [[nodiscard]] QVector<qint64> missed() const;

private:
    [[nodiscard]] bool save(const SeriesPicture& picture);
    [[nodiscard]] WriteResult write(QString& path, const QByteArray& content,
                                    WriteFailure& failure);

    FreePaths m_paths;
    const bool m_isSingle;
    const Listener m_listener;
    QVector<qint64> m_asked;  ///< in rising order
    QVector<qint64> m_failed; ///< likewise
    /// Up to here positions were answered, or mean the frame that was taken last.
    qint64 m_reachedMs = -1;
    bool m_isComplete = false; ///< the video was read to the last position
};
