#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// A file with the bytes that a harness was given; gone with the object. It lies in memory, and is
/// a regular file for those who open it.
class InputFile
{
public:
    InputFile(const std::uint8_t* data, std::size_t size);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    [[nodiscard]] QString path() const;

private:
    int m_file;
};
