#pragma once

#include "series/SeriesPlan.h"
#include "series/SeriesRunner.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

/// The state that the lanes of a series share: which lane does which work, and the finished
/// pictures that wait for their predecessors.
///
/// Thread-safe. The output is called from whatever lane brings what it waits for, one call at a
/// time and without a lock, so that the others go on.
class SeriesBoard
{
public:
    /// What a lane is to do next.
    struct Task
    {
        enum class Kind {
            Plan, ///< open the video and say planned() or failed()
            Open, ///< open the video, which another lane plans; there is nothing to say
            Walk, ///< take the targets of the stretch, or look at its frames, then say finished()
            None, ///< nothing is left to do
        };

        Kind kind = Kind::None;
        int video = 0;
        int stretch = 0;
        /// How many threads decode best.
        int threads = 1;
    };

    /// A picture with the exact time that tells whether two are the same frame.
    struct Delivery
    {
        SeriesPicture picture;
        std::optional<double> seconds = {};
        int index = 0; ///< of the target; of no meaning for key frames and scenes
    };

    SeriesBoard(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                const QtAV::IsCancelled& isCancelled, const SeriesOptions& options);

    /// Whether the output wants a target at all.
    void announce(int video, const QVector<SeriesTarget>& targets)
    {
        m_output.announce(video, targets);
    }
    [[nodiscard]] bool needs(int video, const SeriesTarget& target)
    {
        return m_output.needs(video, target);
    }

    /// Waits until there is something to do, or nothing more will be. A lane that would only wait
    /// is told once to open what it will probably get a part of; `opened` is what it was told last.
    [[nodiscard]] Task next(int opened);

    /// The answers to Plan. The lane that has opened the video goes on with its first stretch,
    /// unless it has none. The failures come after all pictures.
    [[nodiscard]] Task planned(int video, SeriesPlan plan, const SeriesFacts& facts,
                               std::deque<Delivery> failures);
    void failed(int video, const QString& error);

    /// The plan of a video that a lane was given a stretch of; it does not change any more.
    [[nodiscard]] const SeriesPlan& plan(int video) const;

    /// The part of the video that is a stretch.
    [[nodiscard]] SeriesPlan::Stretch stretch(int video, int stretch) const;

    /// Whether a lane may decode in the stretch now: while several do, what one picture takes of
    /// each of them fits into the memory for pictures. The lane that the output waits for always
    /// may. Says leave() when it is done.
    [[nodiscard]] bool enter(int video, int stretch, qint64 pictureBytes);

    /// The same, but waits. False once cancelled.
    [[nodiscard]] bool waitToEnter(int video, int stretch, qint64 pictureBytes);
    void leave(qint64 pictureBytes);

    /// The stretch's next target; nothing when it has no more.
    [[nodiscard]] std::optional<int> take(int video, int stretch);

    /// The lane has to decode from this position on anyway: targets behind it that the stretch
    /// before has not begun become part of this one, which must not have been begun.
    void extendBack(int video, int stretch, qint64 fromMs);

    /// Hands a picture over; waits while too many do. False once cancelled.
    [[nodiscard]] bool deliver(int video, int stretch, Delivery delivery);

    void finished(int video, int stretch, const QString& error = {});

private:
    struct StretchState
    {
        SeriesPlan::Stretch part;
        int next = 0; ///< target
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

        // What the output has got.
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
    int m_firstUnclaimed = 0; ///< video: all before it are claimed wholly
    int m_busy = 0;           ///< tasks that were given out and not answered
    int m_opening = 0;
    int m_head = 0; ///< video that the output gets pictures of
    qint64 m_waitingBytes = 0;
    qint64 m_workingBytes = 0; ///< of one picture of each lane that decodes
    bool m_isDraining = false;
};
