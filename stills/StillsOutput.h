#pragma once

#include "series/SeriesRunner.h"
#include "stills/ContactSheet.h"
#include "stills/Options.h"
#include "stills/OutputStream.h"
#include "stills/PictureFiles.h"
#include "stills/PictureNames.h"
#include "stills/Profiles.h"
#include "stills/Report.h"
#include "stills/RoomEstimate.h"
#include "stills/VideoTask.h"

#include <QHash>
#include <QSet>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace stills {

/// Receives the pictures of a series: writes them, collects contact sheets and reports everything.
class StillsOutput : public SeriesOutput
{
public:
    /// All arguments must outlive this object. The tasks are the videos of the series, in order.
    StillsOutput(const Options& options, const Look& look, const std::vector<VideoTask>& tasks,
                 Report& report);
    ~StillsOutput() override;

    void announce(int video, const QVector<SeriesTarget>& targets) override;
    bool needs(int video, const SeriesTarget& target) override;
    void store(SeriesPicture& picture) override;
    void begin(const SeriesFacts& facts) override;
    void take(SeriesPicture picture) override;
    void end(int video, const QString& error) override;

    /// True after an error that ends the run. From any thread.
    [[nodiscard]] bool wantsToStop() const { return m_wantsToStop; }

private:
    /// What is known about a video's positions before its pictures arrive.
    struct Plan
    {
        QHash<qint64, int> numbers; ///< of the positions in milliseconds, from 1
        int lastNumber = 0;         ///< of the last frame, if that is requested
        QSet<qint64> needed;
        int skipped = 0; ///< not requested because their pictures exist
    };

    [[nodiscard]] bool isMissing(const VideoTask& task, const SeriesTarget& target,
                                 int number) const;
    [[nodiscard]] int numberOf(const SeriesPicture& picture);
    void beginVideo(int video);
    void keep(const SeriesPicture& picture);
    void writePicture(const SeriesPicture& picture, int number);
    void finishSheet(const VideoTask& task);
    void writeSheet(const VideoTask& task, const QImage& sheet);
    void fail(std::optional<qint64> askedMs, const PictureFiles::Outcome& outcome);
    void failStandardOutput(std::optional<qint64> askedMs);
    [[nodiscard]] QString roomText(const SeriesPicture& picture,
                                   const PictureFiles::Outcome& outcome);
    [[nodiscard]] PicturesLeft picturesLeft(int number);
    [[nodiscard]] std::optional<int> expectedOf(int video) const;
    void failVideo(const QString& message);
    [[nodiscard]] QString factsText() const;
    [[nodiscard]] bool hasOneFolder() const { return m_options.folder.has_value(); }

    const Options& m_options;
    const Look& m_look;
    const std::vector<VideoTask>& m_tasks;
    Report& m_report;
    PictureNames m_names;
    PictureFiles m_files;
    OutputStream m_standardOutput;
    std::unique_ptr<ContactSheet> m_sheet;
    RoomEstimate m_room;
    std::atomic<qint64> m_preparedBytes{0}; ///< in files of pictures that wait for their turn
    std::atomic<bool> m_wantsToStop{false};

    int m_begun = -1; ///< the current video
    bool m_isOnly = false;
    std::optional<int> m_expected; ///< pictures of it
    qint64 m_durationMs = 0;
    QSize m_pictureSize;

    std::mutex m_mutex; ///< guards m_plans
    QHash<int, Plan> m_plans;
};

} // namespace stills
