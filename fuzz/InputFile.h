#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// A file with the input of a harness, deleted with the object. It is in memory, but opens like a
/// regular file.
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
