#pragma once

#include <QByteArray>

namespace stills {

/// An open file of the process, such as standard output, written unbuffered. SIGPIPE must be
/// ignored. One thread at a time may use an object.
class OutputStream
{
public:
    /// @param descriptor  not closed by this object
    explicit OutputStream(int descriptor)
        : m_descriptor(descriptor)
    {}

    /// Writes all of the content. Returns false from the first failure on, such as a closed pipe.
    bool write(const QByteArray& content);

    /// True once writing has failed.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    [[nodiscard]] bool isTerminal() const;
    /// Width of the terminal in characters; 80 if unknown.
    [[nodiscard]] int columns() const;

private:
    int m_descriptor = -1;
    bool m_hasFailed = false;
};

} // namespace stills
