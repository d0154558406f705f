#include "ui/mainwindow/VideoFactsText.h"

#include "ui/mainwindow/PlaybackSpeeds.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <cmath>

namespace {

QString translatedFacts(const char* text)
{
    return QCoreApplication::translate("VideoFactsText", text);
}

bool hasRate(const QtAV::MediaFacts& facts)
{
    return facts.rateNumerator > 0 && facts.rateDenominator > 0;
}

double rateOf(const QtAV::MediaFacts& facts)
{
    return static_cast<double>(facts.rateNumerator) / facts.rateDenominator;
}

/// Three digits behind the point, without zeros at the end: 23.976, 25, 29.97.
QString rateText(double rate)
{
    return QString::number(std::round(rate * 1000.0) / 1000.0, 'g', 7);
}

QString frameText(const VideoFactsText::FrameNumber& frame)
{
    // In the form in which it can be typed.
    return (frame.isExact ? QStringLiteral("f%1") : QStringLiteral("\u2248f%1")).arg(frame.value);
}

} // namespace

std::optional<VideoFactsText::FrameNumber> VideoFactsText::estimated(qint64 ms,
                                                                     const QtAV::MediaFacts& facts)
{
    if (!hasRate(facts)) {
        return std::nullopt;
    }
    // The time is truncated, so the frame's own may be up to a millisecond later.
    const double frames = (static_cast<double>(ms) + 0.5) * rateOf(facts) / 1000.0;
    return FrameNumber{std::llround(frames), false};
}

QString VideoFactsText::codecName(const QString& codec)
{
    static const QHash<QString, QString> names{
        {QStringLiteral("h264"), QStringLiteral("H.264")},
        {QStringLiteral("hevc"), QStringLiteral("HEVC")},
        {QStringLiteral("mpeg1video"), QStringLiteral("MPEG-1")},
        {QStringLiteral("mpeg2video"), QStringLiteral("MPEG-2")},
        {QStringLiteral("mpeg4"), QStringLiteral("MPEG-4")},
        {QStringLiteral("prores"), QStringLiteral("ProRes")},
        {QStringLiteral("theora"), QStringLiteral("Theora")},
    };
    return names.value(codec, codec.toUpper());
}

QString VideoFactsText::line(const std::optional<FrameNumber>& frame, const QtAV::MediaFacts& facts,
                             const QSize& size, qreal speed)
{
    QStringList parts;
    if (frame) {
        parts += frameText(*frame);
    }
    if (hasRate(facts)) {
        parts += translatedFacts(QT_TRANSLATE_NOOP("VideoFactsText", "%1 fps"))
                     .arg(rateText(rateOf(facts)));
    }
    if (!size.isEmpty()) {
        parts += QStringLiteral("%1 \u00d7 %2").arg(size.width()).arg(size.height());
    }
    if (!facts.codec.isEmpty()) {
        parts += codecName(facts.codec);
    }
    if (std::abs(speed - 1.0) > 0.001) {
        parts += translatedFacts(QT_TRANSLATE_NOOP("VideoFactsText", "speed %1"))
                     .arg(PlaybackSpeeds::text(speed));
    }
    return parts.join(separator);
}
