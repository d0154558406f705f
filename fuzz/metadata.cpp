// The metadata of a picture, which describes its video and how it was made; and that of a video.

#include "imaging/Metadata.h"
#include "fuzz/InputFile.h"
#include "imaging/Recording.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const InputFile file(data, size);
    QString error;
    static_cast<void>(imaging::readOrigin(file.path(), error));
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data),
                                           static_cast<int>(size < 4096 ? size : 4096));
    static_cast<void>(Recording::parseMoment(text));
    static_cast<void>(Recording::parsePlace(text));
    static_cast<void>(plainText(text));
    static_cast<void>(plainLines(text));
    return 0;
}
