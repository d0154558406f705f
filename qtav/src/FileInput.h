#pragma once

#include <QtAV/FrameResult.h>

#include "qtav/src/FFmpegHandles.h"

#include <QString>

#include <memory>
#include <thread>

namespace QtAV {

/// One local file, open for reading.
///
/// A disk, a memory card or a network share that stops answering blocks its readers forever. So a
/// file is opened in a thread of its own, and read there if the system does not have the data
/// cached. The caller waits only as long as it wants to. A thread that never returns is abandoned
/// together with the file.
///
/// Read failures are remembered because FFmpeg treats them as the end of the file in places.
///
/// Not thread-safe: one thread at a time may use it.
class FileInput
{
public:
    /// Opens a regular file for reading. Null, with a text for people in `error`, if that is not
    /// possible or was cancelled.
    [[nodiscard]] static std::unique_ptr<FileInput>
    open(const QString& path, const IsCancelled& isCancelled, QString& error);
    ~FileInput();
    FileInput(const FileInput&) = delete;
    FileInput& operator=(const FileInput&) = delete;

    /// Sets the callback that is polled while waiting for the disk. Must not be empty.
    void setInterrupt(IsCancelled isCancelled) { m_isCancelled = std::move(isCancelled); }

    /// Reads up to this many bytes into a buffer. Returns the number of bytes read, 0 at the end of
    /// the file, or one of FFmpeg's error numbers: AVERROR_EXIT if it was interrupted.
    [[nodiscard]] int readAt(qint64 position, uint8_t* buffer, int bytes);

    /// The current size of the file in bytes, or one of FFmpeg's error numbers.
    [[nodiscard]] qint64 size();

    /// FFmpeg's number of the first failure since clearError(); 0 for none.
    int error() const { return m_error; }
    void clearError() { m_error = 0; }

    /// True once the file is shorter than before while open: another program is writing to it, and
    /// nothing known about it is valid any more.
    [[nodiscard]] bool hasShrunk();

private:
    class Reader;

    FileInput(std::shared_ptr<Reader> reader, IsCancelled isCancelled);
    [[nodiscard]] static std::unique_ptr<FileInput> make(const IsCancelled& isCancelled,
                                                         QString& error);
    [[nodiscard]] int noted(int result);

    std::shared_ptr<Reader> m_reader;
    std::thread m_thread;
    IsCancelled m_isCancelled;
    qint64 m_largestSize = 0;
    int m_error = 0;
};

/// A position in a file, from which FFmpeg reads and seeks. Several streams of one file are
/// independent. Must not outlive the file.
class FileStream
{
public:
    explicit FileStream(FileInput& input);
    ~FileStream();
    FileStream(const FileStream&) = delete;
    FileStream& operator=(const FileStream&) = delete;

    /// Owned by the stream.
    AVIOContext* context() const { return m_context; }

private:
    static int read(void* stream, uint8_t* buffer, int bytes);
    static int64_t seek(void* stream, int64_t offset, int whence);

    FileInput& m_input;
    qint64 m_position = 0;
    AVIOContext* m_context;
};

} // namespace QtAV
