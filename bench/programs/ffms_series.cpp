// Extracts frames of a video by number with the library FFMS2, for comparison:
//
//   ffms_series full|halved VIDEO FOLDER NUMBER…
//
// The index is created each time, as for a video that is opened for the first time. The frames
// are converted to RGB by the library and written as JPEG files of quality 90, with full or halved
// chroma.

#include "bench/bare/BareJpeg.h"

#include <QFile>
#include <QString>

#include <ffms.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

using bench::BareJpeg;

namespace {

[[noreturn]] void fail(const std::string& what)
{
    std::fprintf(stderr, "%s\n", what.c_str());
    std::exit(1);
}

struct Failure
{
    Failure()
    {
        info.Buffer = text.data();
        info.BufferSize = static_cast<int>(text.size());
    }

    std::array<char, 1024> text{};
    FFMS_ErrorInfo info{};
};

using Video = std::unique_ptr<FFMS_VideoSource, decltype(&FFMS_DestroyVideoSource)>;

Video open(const char* path, Failure& failure)
{
    FFMS_Indexer* const indexer = FFMS_CreateIndexer(path, &failure.info);
    if (indexer == nullptr) {
        fail(failure.text.data());
    }
    FFMS_Index* const made = FFMS_DoIndexing2(indexer, FFMS_IEH_ABORT, &failure.info);
    if (made == nullptr) {
        fail(failure.text.data());
    }
    const std::unique_ptr<FFMS_Index, decltype(&FFMS_DestroyIndex)> index(made, &FFMS_DestroyIndex);
    const int track = FFMS_GetFirstTrackOfType(index.get(), FFMS_TYPE_VIDEO, &failure.info);
    Video video(
        FFMS_CreateVideoSource(path, track, index.get(), 0, FFMS_SEEK_NORMAL, &failure.info),
        &FFMS_DestroyVideoSource);
    if (!video) {
        fail(failure.text.data());
    }
    return video;
}

/// Makes the library deliver pixels of four bytes. Returns the size of the pictures.
QSize chooseFormat(FFMS_VideoSource* video, Failure& failure)
{
    const FFMS_Frame* const first = FFMS_GetFrame(video, 0, &failure.info);
    if (first == nullptr) {
        fail(failure.text.data());
    }
    const QSize size(first->EncodedWidth, first->EncodedHeight);
    const std::array<int, 2> formats{FFMS_GetPixFmt("bgr0"), -1};
    if (FFMS_SetOutputFormatV2(video, formats.data(), size.width(), size.height(),
                               FFMS_RESIZER_BICUBIC, &failure.info) != 0) {
        fail(failure.text.data());
    }
    return size;
}

void write(const QString& path, const BareJpeg& jpeg, std::size_t bytes)
{
    QFile file(path);
    const auto size = static_cast<qint64>(bytes);
    if (size == 0 || !file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(jpeg.data()), size) != size) {
        fail("cannot write " + path.toStdString());
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::string chroma = argc > 1 ? argv[1] : "";
    if (argc < 5 || (chroma != "full" && chroma != "halved")) {
        fail("ffms_series full|halved VIDEO FOLDER NUMBER…");
    }
    FFMS_Init(0, 0);
    Failure failure;
    const Video video = open(argv[2], failure);
    BareJpeg jpeg(chooseFormat(video.get(), failure),
                  chroma == "full" ? BareJpeg::Chroma::Full : BareJpeg::Chroma::Halved);
    for (int i = 4; i < argc; ++i) {
        const FFMS_Frame* const frame =
            FFMS_GetFrame(video.get(), std::atoi(argv[i]), &failure.info);
        if (frame == nullptr) {
            fail(failure.text.data());
        }
        const QString path = QStringLiteral("%1/%2.jpg")
                                 .arg(QFile::decodeName(argv[3]))
                                 .arg(i - 4, 5, 10, QLatin1Char('0'));
        const auto bytesPerLine = static_cast<std::size_t>(frame->Linesize[0]);
        write(path, jpeg, jpeg.encode(frame->Data[0], bytesPerLine, 90));
    }
    return 0;
}
