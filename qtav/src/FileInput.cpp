#include "qtav/src/FileInput.h"

#include "qtav/src/FFmpegLog.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <sys/uio.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace QtAV {

namespace {

/// How often the interrupt callback is polled while waiting for the disk.
constexpr std::chrono::milliseconds impatience{20};

/// Small enough that a seek costs little, large enough for few calls.
constexpr int bufferBytes = 64 << 10;

/// Reads what the system has cached; negative if it would have to wait for the disk.
int readWithoutWaiting(int file, qint64 position, uint8_t* buffer, int bytes)
{
#ifdef RWF_NOWAIT
    const iovec part{buffer, static_cast<size_t>(bytes)};
    return static_cast<int>(preadv2(file, &part, 1, position, RWF_NOWAIT));
#else
    Q_UNUSED(file)
    Q_UNUSED(position)
    Q_UNUSED(buffer)
    Q_UNUSED(bytes)
    return -1;
#endif
}

} // namespace

/// The file, and the job for its thread. Owned by both sides, so that it lasts until both are done
/// with it.
class FileInput::Reader
{
public:
    using Job = std::function<qint64(Reader&)>;

    ~Reader();

    /// The result of a job in the thread; AVERROR_EXIT if the caller stopped waiting for it.
    qint64 carryOut(Job job, const IsCancelled& isCancelled);

    /// Runs jobs until the input is gone.
    void run();

    /// Called when the input is gone. Returns false if the thread may never return.
    [[nodiscard]] bool end();

    int file = -1;
    /// Used only by the thread while a job runs. Does not grow: no memory must run out there.
    std::vector<uint8_t> buffer = std::vector<uint8_t>(bufferBytes);

private:
    std::mutex m_mutex;
    // Guarded by m_mutex.
    std::condition_variable m_changed;
    Job m_job; ///< empty when there is nothing to do
    qint64 m_result = 0;
    bool m_ends = false;
};

FileInput::Reader::~Reader()
{
    if (file >= 0) {
        ::close(file);
    }
}

qint64 FileInput::Reader::carryOut(Job job, const IsCancelled& isCancelled)
{
    std::unique_lock lock(m_mutex);
    const auto waitUntilIdle = [&] {
        while (m_job) {
            m_changed.wait_for(lock, impatience);
            if (m_job && isCancelled()) {
                return false;
            }
        }
        return true;
    };
    if (!waitUntilIdle()) {
        return AVERROR_EXIT;
    }
    m_job = std::move(job);
    m_changed.notify_all();
    return waitUntilIdle() ? m_result : AVERROR_EXIT;
}

void FileInput::Reader::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_ends) {
        if (!m_job) {
            m_changed.wait(lock);
            continue;
        }
        const Job job = m_job;
        lock.unlock();
        const qint64 result = job(*this);
        lock.lock();
        m_result = result;
        m_job = nullptr;
        m_changed.notify_all();
    }
}

bool FileInput::Reader::end()
{
    const std::lock_guard lock(m_mutex);
    m_ends = true;
    m_changed.notify_all();
    return !m_job;
}

namespace {

qint64 bytesIn(int file)
{
    struct stat facts = {};
    return ::fstat(file, &facts) == 0 ? facts.st_size : AVERROR(errno);
}

/// Opens a regular file. Refuses pipes and devices with EINVAL, because opening them would wait for
/// a writer.
int openRegular(const char* name)
{
    struct stat facts = {};
    if (::stat(name, &facts) != 0) {
        return AVERROR(errno);
    }
    if (!S_ISREG(facts.st_mode)) {
        return AVERROR(EINVAL);
    }
    const int file = ::open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) {
        return AVERROR(errno);
    }
    if (::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode)) {
        return file;
    }
    ::close(file);
    return AVERROR(EINVAL);
}

QString openingError(int error)
{
    switch (error) {
    case AVERROR(ENOENT):
        return QCoreApplication::translate("QtAV::AVDemuxer", "The file does not exist.");
    case AVERROR(EINVAL):
        return QCoreApplication::translate("QtAV::AVDemuxer", "This is not a file.");
    default:
        return ffmpegErrorText(error);
    }
}

} // namespace

FileInput::FileInput(std::shared_ptr<Reader> reader, IsCancelled isCancelled)
    : m_reader(std::move(reader))
    , m_thread([shared = m_reader] { shared->run(); })
    , m_isCancelled(std::move(isCancelled))
{}

FileInput::~FileInput()
{
    if (m_reader->end()) {
        m_thread.join();
    } else {
        m_thread.detach();
    }
}

/// Null if the system provides no more threads.
std::unique_ptr<FileInput> FileInput::make(const IsCancelled& isCancelled, QString& error)
{
    try {
        return std::unique_ptr<FileInput>(new FileInput(std::make_shared<Reader>(), isCancelled));
    } catch (const std::system_error& failure) {
        error = QString::fromLocal8Bit(failure.what());
        return nullptr;
    }
}

std::unique_ptr<FileInput> FileInput::open(const QString& path, const IsCancelled& isCancelled,
                                           QString& error)
{
    std::unique_ptr<FileInput> input = make(isCancelled, error);
    if (!input) {
        return nullptr;
    }
    const auto open = [name = QFile::encodeName(path)](Reader& reader) -> qint64 {
        const int result = openRegular(name.constData());
        reader.file = result;
        return std::min(result, 0);
    };
    const auto result = static_cast<int>(input->m_reader->carryOut(open, isCancelled));
    if (result < 0) {
        error = openingError(result);
        return nullptr;
    }
    static_cast<void>(input->size());
    return input;
}

int FileInput::readAt(qint64 position, uint8_t* buffer, int bytes)
{
    if (m_isCancelled()) {
        return noted(AVERROR_EXIT);
    }
    const int ready = readWithoutWaiting(m_reader->file, position, buffer, bytes);
    if (ready >= 0) {
        return ready;
    }
    const auto read = [position, bytes](Reader& reader) -> qint64 {
        const size_t part = std::min(static_cast<size_t>(bytes), reader.buffer.size());
        const ssize_t got = ::pread(reader.file, reader.buffer.data(), part, position);
        return got >= 0 ? got : AVERROR(errno);
    };
    const auto result = static_cast<int>(m_reader->carryOut(read, m_isCancelled));
    if (result > 0) {
        std::memcpy(buffer, m_reader->buffer.data(), static_cast<size_t>(result));
    }
    return noted(result);
}

int FileInput::noted(int result)
{
    if (result < 0 && m_error == 0) {
        m_error = result;
    }
    return result;
}

qint64 FileInput::size()
{
    const qint64 bytes =
        m_reader->carryOut([](Reader& reader) { return bytesIn(reader.file); }, m_isCancelled);
    m_largestSize = std::max(m_largestSize, bytes);
    return bytes;
}

bool FileInput::hasShrunk()
{
    const qint64 bytes = size();
    return bytes >= 0 && bytes < m_largestSize;
}

FileStream::FileStream(FileInput& input)
    : m_input(input)
{
    auto* const buffer = static_cast<unsigned char*>(av_malloc(bufferBytes));
    Q_CHECK_PTR(buffer);
    m_context = avio_alloc_context(buffer, bufferBytes, 0, this, &FileStream::read, nullptr,
                                   &FileStream::seek);
    Q_CHECK_PTR(m_context);
}

FileStream::~FileStream()
{
    av_freep(&m_context->buffer);
    avio_context_free(&m_context);
}

int FileStream::read(void* stream, uint8_t* buffer, int bytes)
{
    auto& self = *static_cast<FileStream*>(stream);
    const int result = self.m_input.readAt(self.m_position, buffer, bytes);
    self.m_position += std::max(result, 0);
    return result == 0 ? AVERROR_EOF : result;
}

int64_t FileStream::seek(void* stream, int64_t offset, int whence)
{
    auto& self = *static_cast<FileStream*>(stream);
    if (whence == AVSEEK_SIZE) {
        return self.m_input.size();
    }
    const qint64 size = whence == SEEK_END ? self.m_input.size() : 0;
    const qint64 base = whence == SEEK_CUR ? self.m_position : size;
    if (size < 0 || base + offset < 0) {
        return AVERROR(EINVAL);
    }
    return self.m_position = base + offset;
}

} // namespace QtAV
