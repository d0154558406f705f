#pragma once

#include <QByteArray>

namespace stills {

/// An open file of the process, such as standard output, written unbuffered. SIGPIPE must be
/// ignored. One thread at a time may use an object, and only one object should write to a pipe at a
/// time.
class OutputStream
{
public:
    /// @param descriptor  not closed by this object
    explicit OutputStream(int descriptor);

    /// Writes all of the content; waits while the reader does not read. Returns false from the
    /// first failure on, such as a closed pipe. After a signal, see Interruption, a reader that
    /// does not go on at once is a failure, too.
    bool write(const QByteArray& content);

    /// True once writing has failed.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    [[nodiscard]] bool isTerminal() const;
    /// Width of the terminal in characters; 80 if unknown.
    [[nodiscard]] int columns() const;

private:
    [[nodiscard]] bool waitForRoom() const;

    int m_descriptor = -1;
    qint64 m_largestWrite = 0; ///< that does not block once there is room
    bool m_hasFailed = false;
};

} // namespace stills
