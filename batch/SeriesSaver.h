#pragma once

#include "batch/FreePaths.h"
#include "imaging/FilePublisher.h"
#include "series/SeriesRunner.h"

#include <QImage>
#include <QString>

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

    void begin(const SeriesFacts& facts) override;
    void take(SeriesPicture picture) override;
    void end(int video, const QString& error) override;

private:
    [[nodiscard]] WriteResult save(QString& path, const QByteArray& content, WriteFailure& failure);

    FreePaths m_paths;
    const bool m_isSingle;
    const Listener m_listener;
};
