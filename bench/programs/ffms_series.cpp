// Extracts frames of a video by number with the library FFMS2, for comparison:
//
//   ffms_series VIDEO FOLDER NUMBER…
//
// The index is created each time, as for a video that is opened for the first time. The frames
// are converted to RGB by the library and written as JPEG files of quality 90.

#include <QFile>
#include <QImage>
#include <QString>

#include <ffms.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

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

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        fail("ffms_series VIDEO FOLDER NUMBER…");
    }
    FFMS_Init(0, 0);
    Failure failure;
    const Video video = open(argv[1], failure);
    const FFMS_Frame* const first = FFMS_GetFrame(video.get(), 0, &failure.info);
    if (first == nullptr) {
        fail(failure.text.data());
    }
    const std::array<int, 2> formats{FFMS_GetPixFmt("rgb24"), -1};
    if (FFMS_SetOutputFormatV2(video.get(), formats.data(), first->EncodedWidth,
                               first->EncodedHeight, FFMS_RESIZER_BICUBIC, &failure.info) != 0) {
        fail(failure.text.data());
    }
    for (int i = 3; i < argc; ++i) {
        const FFMS_Frame* const frame =
            FFMS_GetFrame(video.get(), std::atoi(argv[i]), &failure.info);
        if (frame == nullptr) {
            fail(failure.text.data());
        }
        const QImage image(frame->Data[0], frame->EncodedWidth, frame->EncodedHeight,
                           frame->Linesize[0], QImage::Format_RGB888);
        const QString path = QStringLiteral("%1/%2.jpg")
                                 .arg(QFile::decodeName(argv[2]))
                                 .arg(i - 3, 5, 10, QLatin1Char('0'));
        if (!image.save(path, "jpeg", 90)) {
            fail("cannot write " + path.toStdString());
        }
    }
    return 0;
}
