#pragma once

#include <QtAV/FrameResult.h>

#include "qtav/src/FFmpegHandles.h"

#include <QString>

#include <memory>
#include <thread>

namespace QtAV {

/// One local file, open for reading.
///
/// A disk, a memory card or a network share that stops answering blocks its readers without end. So
/// a file is opened, and read where the system does not have the data at hand, in a thread of its
/// own, for which the caller waits no longer than it wants to. A thread that never comes back is
/// left behind with the file.
///
/// A failure to read is remembered, since FFmpeg takes it for the end of the file in places.
///
/// Not thread-safe: one thread at a time may use it.
class FileInput
{
public:
    /// Opens a regular file for reading. Null, with a text for people in `error`, when that is not
    /// possible or was cancelled.
    [[nodiscard]] static std::unique_ptr<FileInput>
    open(const QString& path, const IsCancelled& isCancelled, QString& error);
    ~FileInput();
    FileInput(const FileInput&) = delete;
    FileInput& operator=(const FileInput&) = delete;

    /// Asked while waiting for the disk, until it is set anew. Must not be empty.
    void setInterrupt(IsCancelled isCancelled) { m_isCancelled = std::move(isCancelled); }

    /// Reads up to so many bytes into a buffer. How many were read, 0 at the end of the file, or
    /// one of FFmpeg's error numbers: AVERROR_EXIT when it was interrupted.
    [[nodiscard]] int readAt(qint64 position, uint8_t* buffer, int bytes);

    /// How long the file is now, in bytes, or one of FFmpeg's error numbers.
    [[nodiscard]] qint64 size();

    /// FFmpeg's number for the first failure since clearError(); 0 for none.
    int error() const { return m_error; }
    void clearError() { m_error = 0; }

    /// True once the file is shorter than it has been while open: another program writes into it,
    /// and nothing that is known of it holds any more.
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

/// A place in a file from which FFmpeg reads and seeks. Several of one file do not disturb each
/// other. Must not outlive the file.
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
