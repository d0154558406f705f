#pragma once

#include <QByteArray>

namespace stills {

/// One of the process's open files, such as standard output, written at once and without a buffer.
/// SIGPIPE must be ignored. One thread at a time.
class OutputStream
{
public:
    /// @param descriptor  stays the caller's
    explicit OutputStream(int descriptor)
        : m_descriptor(descriptor)
    {}

    /// Writes all of it. False from the first failure on, such as a reader that is gone.
    bool write(const QByteArray& content);

    /// Something could not be written.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    [[nodiscard]] bool isTerminal() const;
    /// How many characters fit into a line; 80 where that is not known.
    [[nodiscard]] int columns() const;

private:
    int m_descriptor = -1;
    bool m_hasFailed = false;
};

} // namespace stills
