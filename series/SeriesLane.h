#pragma once

#include "imaging/PictureSource.h"
#include "series/SeriesBoard.h"

#include <QtAV/Deadline.h>
#include <QtAV/FrameReader.h>

#include <memory>
#include <optional>

/// A worker of a series: decodes with its own reader, makes the pictures and encodes them. Used
/// only in the thread that runs it.
class SeriesLane
{
public:
    /// The number of lanes is taken from the options.
    SeriesLane(SeriesBoard& board, const QVector<SeriesJob>& jobs, const SeriesOptions& options,
               const QtAV::IsCancelled& isCancelled);

    /// Works until no work is left or everything is cancelled.
    void run();

private:
    using Task = SeriesBoard::Task;
    using Delivery = SeriesBoard::Delivery;

    [[nodiscard]] Task plan(const Task& task);
    [[nodiscard]] Task makePlan(const Task& task);
    [[nodiscard]] FramePositions bestPositions(const FramePositions& wanted, qint64 durationMs,
                                               QString& error);
    [[nodiscard]] QVector<SeriesTarget> neededTargets(int video, const FramePositions& positions,
                                                      const SeriesLength& length,
                                                      std::deque<Delivery>& failures) const;
    [[nodiscard]] bool open(int video, QString& error);
    void readThrough(SeriesLength& length);
    void beginPosition();
    [[nodiscard]] QtAV::FrameResult inTime(QtAV::FrameResult result);
    [[nodiscard]] QString overdueText() const;
    [[nodiscard]] bool isGivenUp() const;

    void walk(const Task& task);
    [[nodiscard]] bool enter(const Task& task, qint64 pictureBytes, QString& error);
    [[nodiscard]] QString walkStretch(const Task& task);
    [[nodiscard]] QString walkAll(const Task& task);
    void walkTargets(const Task& task);
    [[nodiscard]] bool walkTarget(const Task& task, int index);
    void begin(const Task& task);
    void approach(qint64 ms);
    [[nodiscard]] bool wantsToStartAnew(qint64 ms, qint64 lastMs) const;
    [[nodiscard]] QtAV::FrameResult find(const SeriesTarget& target);
    template <typename Next, typename IsWanted>
    [[nodiscard]] QString walkPart(const Task& task, const SeriesPlan::Stretch& part,
                                   const Next& next, const IsWanted& isWanted);
    [[nodiscard]] QString walkKeyFrames(const Task& task);
    [[nodiscard]] QtAV::FrameResult nextKeyFrame(qint64 beforeMs);
    [[nodiscard]] QtAV::FrameResult findAgain(const QtAV::VideoFrame& frame);
    [[nodiscard]] QString walkScenes(const Task& task);

    [[nodiscard]] bool deliver(const Task& task, Delivery delivery, const QtAV::FrameResult& found);
    [[nodiscard]] Delivery deliveryFor(const Task& task) const;

    SeriesBoard& m_board;
    const QVector<SeriesJob>& m_jobs;
    const SeriesOptions& m_options;
    const QtAV::IsCancelled& m_isCancelled; ///< for the whole series
    const std::shared_ptr<QtAV::Deadline> m_deadline;
    const QtAV::IsCancelled m_isCancelledOrLate;

    QtAV::FrameReader m_reader;
    int m_video = -1;                            ///< the video that the reader has open
    std::unique_ptr<QtAV::FrameReader> m_second; ///< has the same video open; null unless needed
    PictureSource m_source;                      ///< describes that video
    int m_overdue = 0;                           ///< positions of that video that took too long
    bool m_startsAnew = false;                   ///< the next search restarts
    int m_readied = -1;                          ///< the last video opened ahead of its plan
    bool m_knowsKeyFrames = false;               ///< from the index, which can be wrong
    std::optional<double> m_lastSeconds;         ///< time of the last delivered frame of a stretch
};
