#include "tests/support/SampleTable.h"

#include <QFileInfo>

namespace testsupport {

namespace {

constexpr QSize small{320, 240};
constexpr Rational pal{25, 1};
constexpr Rational film{24000, 1001};
constexpr Rational ntscFields{60000, 1001};

/// The unit of the times in a container, told by the file's extension.
Rational tickOf(const QString& file)
{
    const QString extension = QFileInfo(file).suffix();
    const auto isOneOf = [&](std::initializer_list<const char*> extensions) {
        for (const char* candidate : extensions) {
            if (extension == QLatin1String(candidate))
                return true;
        }
        return false;
    };
    if (isOneOf({"mkv", "webm", "flv", "wmv"}))
        return {1, 1000};
    if (isOneOf({"ts", "mpg"}))
        return {1, 90000};
    return {0, 1};
}

/// Builds one entry of the table; what is not said is as in most samples.
struct Entry : Sample
{
    Entry(const char* name, int frameCount, Rational rate = pal, QSize size = small)
    {
        file = QString::fromUtf8(name);
        frames = frameCount;
        frameRate = rate;
        tick = tickOf(file);
        codedSize = size;
        displaySize = size;
    }

    Entry& with(Traits more)
    {
        traits |= more;
        return *this;
    }
    Entry& shownAs(QSize size)
    {
        displaySize = size;
        return *this;
    }
    Entry& startingAt(Rational seconds)
    {
        start = seconds;
        return *this;
    }
    Entry& countingFrom(int number)
    {
        firstNumber = number;
        return *this;
    }
    Entry& at(QList<qint64> times)
    {
        traits |= Trait::VariableRate;
        timesMs = std::move(times);
        return *this;
    }
};

QList<Sample> joined(std::initializer_list<QList<Sample>> lists)
{
    QList<Sample> all;
    for (const auto& list : lists)
        all += list;
    return all;
}

QList<Sample> h264Samples()
{
    return {
        Entry("h264_bframes.mp4", 100),
        Entry("h264_gop250.mp4", 520, pal, {160, 120}),
        Entry("h264_open_gop_bframes.mp4", 100).with(Trait::OpenGop),
        Entry("h264_intra_only.mp4", 50),
        Entry("h264_intra_refresh.mp4", 100).with(Trait::IntraRefresh),
        Entry("h264_baseline.mp4", 50),
        Entry("h264_one_frame.mp4", 1),
        Entry("h264_23976fps.mp4", 96, film),
        Entry("h264_5994fps.mp4", 120, ntscFields),
        Entry("h264_30fps.mp4", 90, {30, 1}),
        Entry("h264_1fps.mp4", 20, {1, 1}),
        Entry("h264_1080p.mp4", 60, {30, 1}, {1920, 1080}).with(Trait::Large),
        Entry("h264_10bit.mp4", 50),
        Entry("h264_422.mp4", 50),
        Entry("h264_444.mp4", 50),
        Entry("h264_fragmented.mp4", 75),
    };
}

} // namespace

QList<Sample> videoSampleTable()
{
    return joined({h264Samples()});
}

QList<Sample> noVideoSampleTable()
{
    return {};
}

QList<Sample> brokenSampleTable()
{
    return {};
}

} // namespace testsupport
