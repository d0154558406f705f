#include "tests/support/Samples.h"

#include "tests/support/SampleTable.h"
#include "tests/support/Sanitizers.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace testsupport {

namespace {

/// The largest whole number not above num / den, for any sign of num.
qint64 floorDiv(qint64 num, qint64 den)
{
    const qint64 quotient = num / den;
    return num % den < 0 ? quotient - 1 : quotient;
}

Rational sum(const Rational& a, const Rational& b)
{
    return {a.num * b.den + b.num * a.den, a.den * b.den};
}

/// The nearest multiple of the unit, as containers round times; halves go up.
Rational rounded(const Rational& seconds, const Rational& unit)
{
    const qint64 num = seconds.num * unit.den;
    const qint64 den = seconds.den * unit.num;
    const qint64 count = floorDiv(2 * num + den, 2 * den);
    return {count * unit.num, unit.den};
}

} // namespace

QString samplePath(const QString& file)
{
    const QString folder = qEnvironmentVariable("MORVANTILE_MEDIA");
    if (folder.isEmpty()) {
        qFatal("MORVANTILE_MEDIA does not name the folder of the sample videos");
    }
    return QDir(folder).filePath(file);
}

const QList<Sample>& allVideoSamples()
{
    static const QList<Sample> samples = videoSampleTable();
    return samples;
}

const QList<Sample>& videoSamplesToRepeat()
{
    static const QList<Sample> samples = samplesToRepeat(allVideoSamples());
    return samples;
}

QList<Sample> samplesToRepeat(const QList<Sample>& samples)
{
    constexpr int step = isSanitized ? 5 : 1;
    QList<Sample> chosen;
    for (int i = 0; i < samples.size(); i += step) {
        chosen.append(samples.at(i));
    }
    return chosen;
}

const QList<Sample>& noVideoSamples()
{
    static const QList<Sample> samples = noVideoSampleTable();
    return samples;
}

const QList<Sample>& brokenSamples()
{
    static const QList<Sample> samples = brokenSampleTable();
    return samples;
}

const Sample& sampleNamed(QStringView file)
{
    for (const auto* list : {&allVideoSamples(), &noVideoSamples(), &brokenSamples()}) {
        const auto found = std::find_if(list->cbegin(), list->cend(),
                                        [&](const Sample& sample) { return sample.file == file; });
        if (found != list->cend()) {
            return *found;
        }
    }
    qFatal("No sample is named %s", qUtf8Printable(file.toString()));
}

qint64 frameTimeMs(const Sample& sample, int n)
{
    if (sample.has(Trait::VariableRate)) {
        return sample.timesMs.at(n);
    }
    const Rational sinceFirst{n * sample.frameRate.den, sample.frameRate.num};
    Rational seconds = sum(sample.start, sinceFirst);
    if (sample.tick.num != 0) {
        seconds = rounded(seconds, sample.tick);
    }
    return floorDiv(seconds.num * 1000, seconds.den);
}

QSize displaySizeOf(const Sample& sample, int n)
{
    constexpr int firstSmallFrame = 50;
    const bool isSmall = sample.has(Trait::SizeChange) && n >= firstSmallFrame;
    return isSmall ? QSize(176, 144) : sample.displaySize;
}

QList<int> keyFrames(const Sample& sample)
{
    QFile list(samplePath(QStringLiteral(".keyframes/") + sample.file));
    if (!list.open(QIODevice::ReadOnly)) {
        qFatal("No list of key frames: %s", qUtf8Printable(list.fileName()));
    }
    QList<int> frames;
    while (!list.atEnd()) {
        frames.append(list.readLine().trimmed().toInt());
    }
    return frames;
}

} // namespace testsupport
