#pragma once

#include "batch/FreePaths.h"
#include "imaging/FilePublisher.h"
#include "series/SeriesRunner.h"

#include <QImage>
#include <QString>
#include <QVector>

#include <functional>

/// Saves the pictures of one video's series under the names of a batch job, in order. Numbers are
/// given only to pictures that could be made, and no existing file is replaced.
///
/// The engine calls it from several threads in turn. The functions of the listener are called
/// there.
class SeriesSaver : public SeriesOutput
{
public:
    struct Listener
    {
        std::function<void(int pictures)> expecting;
        std::function<void()> beforePicture;
        std::function<void(QtAV::BaseLayer layer)> showing; ///< for each picture that could be made
        std::function<void(const QString& path)> saving;
        std::function<void(const WriteFailure& failure)> notSaved;
        /// Called if there is no room for a picture; returns true to try again. May wait.
        std::function<bool(const WriteFailure& failure)> lacksRoom;
        std::function<void(const QImage& image)> saved;
        std::function<void(const QString& message)> failed;
    };

    SeriesSaver(FreePaths paths, bool isSingle, Listener listener);

    void announce(int video, const QVector<SeriesTarget>& targets) override;
    void begin(const SeriesFacts& facts) override;
    void take(SeriesPicture picture) override;
    void end(int video, const QString& error) override;

    /// The positions, in milliseconds and rising order, without a saved picture: failed ones, and
    /// those that were not reached. Call it after the run.
    [[nodiscard]] QVector<qint64> missed() const;

private:
    [[nodiscard]] bool save(const SeriesPicture& picture);
    [[nodiscard]] WriteResult write(QString& path, const QByteArray& content,
                                    WriteFailure& failure);

    FreePaths m_paths;
    const bool m_isSingle;
    const Listener m_listener;
    QVector<qint64> m_asked;  ///< in rising order
    QVector<qint64> m_failed; ///< in rising order
    /// Positions up to this one were answered or refer to the most recent frame.
    qint64 m_reachedMs = -1;
    bool m_isComplete = false; ///< the video was read to the last position
};
