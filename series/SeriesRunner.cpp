#include "series/SeriesRunner.h"

#include "series/SeriesBoard.h"
#include "series/SeriesLane.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr qint64 mostMemoryBytes = qint64(2) << 30;

/// Joins its threads when it goes out of scope.
class Threads
{
public:
    Threads() = default;
    ~Threads()
    {
        for (std::thread& thread : m_threads) {
            thread.join();
        }
    }
    Threads(const Threads&) = delete;
    Threads& operator=(const Threads&) = delete;

    /// Starts fewer threads if the system provides no more.
    template <typename Work>
    void start(int count, const Work& work)
    {
        try {
            for (int i = 0; i < count; ++i) {
                m_threads.emplace_back(work);
            }
        } catch (const std::system_error&) {
            return;
        }
    }

private:
    std::vector<std::thread> m_threads;
};

int coreCount()
{
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

} // namespace

void SeriesOutput::announce(int, const QVector<SeriesTarget>&)
{}

bool SeriesOutput::needs(int, const SeriesTarget&)
{
    return true;
}

void SeriesOutput::store(SeriesPicture&)
{}

void SeriesOutput::begin(const SeriesFacts&)
{}

void SeriesOutput::end(int, const QString&)
{}

qint64 series::defaultMemoryBytes()
{
    const qint64 pages = ::sysconf(_SC_PHYS_PAGES);
    const qint64 quarter = pages * ::sysconf(_SC_PAGESIZE) / 4;
    return pages > 0 ? std::min(quarter, mostMemoryBytes) : mostMemoryBytes;
}

bool series::run(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                 const QtAV::IsCancelled& isCancelled, const SeriesOptions& options)
{
    SeriesOptions resources = options;
    resources.lanes = options.lanes > 0 ? options.lanes : coreCount();
    resources.memoryBytes = options.memoryBytes > 0 ? options.memoryBytes : defaultMemoryBytes();
    SeriesBoard board(jobs, output, isCancelled, resources);
    const auto work = [&board, &jobs, &isCancelled, &resources] {
        SeriesLane(board, jobs, resources, isCancelled).run();
    };
    {
        Threads others;
        others.start(resources.lanes - 1, work);
        work();
    }
    return !isCancelled();
}
