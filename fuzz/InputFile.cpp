#include "fuzz/InputFile.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

InputFile::InputFile(const std::uint8_t* data, std::size_t size)
    : m_file(::memfd_create("input", 0))
{
    if (m_file < 0 || ::write(m_file, data, size) != static_cast<ssize_t>(size)) {
        std::abort();
    }
}

InputFile::~InputFile()
{
    ::close(m_file);
}

QString InputFile::path() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_file);
}
