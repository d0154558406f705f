// A video file: it is opened, sought in and decoded, and its frames are made pictures.

#include "fuzz/InputFile.h"
#include "fuzz/Limits.h"
#include "imaging/FramePicture.h"
#include "imaging/PictureSource.h"
#include "imaging/Rendering.h"

#include <QtAV/FrameReader.h>
#include <QtAV/QtAV_Global.h>

namespace {

void makePicture(const QtAV::VideoFrame& frame, const QtAV::FrameReader& reader)
{
    ImageRecipe recipe;
    recipe.keepsSize = false;
    recipe.bounds = QSize(64, 64);
    const QImage picture = imaging::pictureOf(frame, recipe);
    const imaging::Rendering made = imaging::render(picture, recipe);
    const QtAV::MediaFacts facts = reader.demuxer().facts();
    const PictureSource source = PictureSource::of(QStringLiteral("video"), facts.tags,
                                                   facts.tickNumerator, facts.tickDenominator);
    static_cast<void>(imaging::encode(made.image, recipe, QStringLiteral("jpg"),
                                      source.at(frame.timestamp(), frame.displaySize())));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QtAV::setLogLevel(QtAV::LogOff);
    const InputFile file(data, size);
    const auto deadline = fuzzlimits::startedDeadline();
    const QtAV::IsCancelled isLate = fuzzlimits::until(deadline);
    QtAV::FrameReader reader;
    reader.setThreads(1);
    reader.setPictureMemory(fuzzlimits::pictureBytes);
    reader.setDeadline(deadline);
    QString error;
    if (!reader.open(file.path(), isLate, error)) {
        return 0;
    }
    static_cast<void>(reader.indexedKeyFrames());
    const qint64 duration = reader.demuxer().duration();
    for (const qint64 ms : {duration / 2, qint64(0), duration}) {
        QtAV::FrameReader::Search search;
        search.ms = ms;
        search.completeFrom = ms;
        search.isReached = [ms](const QtAV::VideoFrame& frame) {
            return frame.timestamp() * 1000.0 >= static_cast<double>(ms);
        };
        const QtAV::FrameResult found = reader.find(search, isLate);
        if (found.frame.isValid()) {
            makePicture(found.frame, reader);
        }
    }
    static_cast<void>(reader.readFrameTimes(isLate));
    return 0;
}
