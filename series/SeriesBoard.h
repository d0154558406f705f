#pragma once

#include "series/SeriesPlan.h"
#include "series/SeriesRunner.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

/// The state shared by the lanes of a series: which lane does which work, and the finished pictures
/// that wait for their predecessors.
///
/// Thread-safe. The output is called by the lane that delivers what it waits for, one call at a
/// time and without the lock held, so that other lanes continue.
class SeriesBoard
{
public:
    /// The next work of a lane.
    struct Task
    {
        enum class Kind {
            Plan, ///< open the video and call planned() or failed()
            Open, ///< open the video, which another lane plans; needs no answer
            Walk, ///< process the targets or the frames of the stretch, then call finished()
            None, ///< no work is left
        };

        Kind kind = Kind::None;
        int video = 0;
        int stretch = 0;
        /// The best number of decoding threads.
        int threads = 1;
    };

    /// A picture with the exact time that identifies its frame.
    struct Delivery
    {
        SeriesPicture picture;
        std::optional<double> seconds = {};
        int index = 0; ///< of the target; meaningless for key frames and scenes
    };

    SeriesBoard(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                const QtAV::IsCancelled& isCancelled, const SeriesOptions& options);

    /// Tells the output about the targets of a video before it is asked about each.
    void announce(int video, const QVector<SeriesTarget>& targets)
    {
        m_output.announce(video, targets);
    }
    [[nodiscard]] bool needs(int video, const SeriesTarget& target)
    {
        return m_output.needs(video, target);
    }

    /// Waits until there is work, or none is left. A lane that would only wait is asked once to
    /// open a video of which it will probably get a part; `opened` is the last video that it was
    /// asked to open.
    [[nodiscard]] Task next(int opened);

    /// Answers Plan. The lane that opened the video continues with its first stretch, unless it has
    /// none. The failures are reported after all pictures.
    [[nodiscard]] Task planned(int video, SeriesPlan plan, const SeriesFacts& facts,
                               std::deque<Delivery> failures);
    void failed(int video, const QString& error);

    /// The plan of a video of which the lane has a stretch; it no longer changes.
    [[nodiscard]] const SeriesPlan& plan(int video) const;

    /// The part of the video that a stretch covers.
    [[nodiscard]] SeriesPlan::Stretch stretch(int video, int stretch) const;

    /// Whether a lane may decode in the stretch now: while several do, what one picture takes of
    /// each of them fits into the memory for pictures. The lane that the output waits for always
    /// may. Says leave() when it is done.
    [[nodiscard]] bool enter(int video, int stretch, qint64 pictureBytes);

    /// The same, but waits. False once cancelled.
    [[nodiscard]] bool waitToEnter(int video, int stretch, qint64 pictureBytes);
    void leave(qint64 pictureBytes);

    /// Takes the stretch's next target; nothing if it has no more.
    [[nodiscard]] std::optional<int> take(int video, int stretch);

    /// Call if the lane has to decode from this position on anyway: targets behind it that the
    /// previous stretch has not begun move to this stretch, which must not have been begun.
    void extendBack(int video, int stretch, qint64 fromMs);

    /// Delivers a picture; waits while too many pictures wait. False once cancelled.
    [[nodiscard]] bool deliver(int video, int stretch, Delivery delivery);

    void finished(int video, int stretch, const QString& error = {});

private:
    struct StretchState
    {
        SeriesPlan::Stretch part;
        int next = 0; ///< index of the next target
        bool isFinished = false;
        std::deque<Delivery> waiting;
    };

    enum class State { Unopened, Opening, Planned, Failed };

    struct VideoState
    {
        State state = State::Unopened;
        SeriesPlan plan;
        SeriesFacts facts;
        std::deque<StretchState> stretches;
        int firstUnclaimed = 0;
        QString error;

        // What has been passed to the output.
        bool hasBegun = false;
        int stretch = 0;
        int pictures = 0;
        std::optional<double> lastSeconds;
    };

    [[nodiscard]] std::optional<Task> claim();
    [[nodiscard]] std::optional<int> firstToShare() const;
    [[nodiscard]] Task claimStretch(int video);
    [[nodiscard]] int threadsFor(int unclaimed) const;
    void drain(std::unique_lock<std::mutex>& lock);
    [[nodiscard]] bool drainOne(std::unique_lock<std::mutex>& lock);
    void giveNext(std::unique_lock<std::mutex>& lock, StretchState& stretch);
    [[nodiscard]] bool isAtHead(int video, int stretch) const;
    [[nodiscard]] bool entersNow(int video, int stretch, qint64 pictureBytes);

    const QVector<SeriesJob>& m_jobs;
    SeriesOutput& m_output;
    const QtAV::IsCancelled& m_isCancelled;
    const int m_lanes;
    const qint64 m_memoryBytes;
    const qint64 m_mostWorkingBytes;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<VideoState> m_videos;
    int m_firstUnclaimed = 0; ///< video; all before it are claimed completely
    int m_busy = 0;           ///< tasks that were assigned and not answered
    int m_opening = 0;
    int m_head = 0; ///< video whose pictures the output is receiving
    qint64 m_waitingBytes = 0;
    qint64 m_workingBytes = 0; ///< of one picture of each lane that decodes
    bool m_isDraining = false;
};
