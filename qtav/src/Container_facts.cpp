// What a file says about itself, beyond its streams.

#include "qtav/src/Container.h"

#include "qtav/src/CleanAperture.h"
#include "qtav/src/DynamicMetadata.h"

#include <algorithm>
#include <cstring>

namespace QtAV {

namespace {

/// More of any of these is no description of a video.
constexpr int mostChapters = 1000;
constexpr int mostTags = 256;
constexpr int longestTagBytes = 4096;

/// Adds the texts whose keys are not there yet.
void addTags(QMap<QString, QString>& tags, const AVDictionary* dictionary)
{
    const AVDictionaryEntry* entry = nullptr;
    while (tags.size() < mostTags) {
        entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX);
        if (!entry) {
            return;
        }
        const QString key = QString::fromUtf8(entry->key).toLower();
        if (!tags.contains(key)) {
            const auto size = static_cast<int>(qstrnlen(entry->value, longestTagBytes));
            tags.insert(key, QString::fromUtf8(entry->value, size));
        }
    }
}

} // namespace

MediaFacts Container::facts(int stream) const
{
    MediaFacts facts;
    addTags(facts.tags, m_format->metadata);
    facts.chapters = chapters();
    if (stream >= 0) {
        const AVStream& described = *m_format->streams[stream];
        addTags(facts.tags, described.metadata);
        facts.tickNumerator = described.time_base.num;
        facts.tickDenominator = described.time_base.den;
        facts.baseLayer = baseLayerOf(described);
        const AVRational rate = frameRate(stream);
        facts.rateNumerator = rate.num;
        facts.rateDenominator = rate.den;
        facts.codec = QString::fromLatin1(avcodec_get_name(described.codecpar->codec_id));
    }
    return facts;
}

QVector<Chapter> Container::chapters() const
{
    QVector<Chapter> chapters;
    const unsigned count = std::min<unsigned>(m_format->nb_chapters, mostChapters);
    for (unsigned i = 0; i < count; ++i) {
        const AVChapter& marked = *m_format->chapters[i];
        const bool isTimed = marked.time_base.num > 0 && marked.time_base.den > 0;
        if (!isTimed || marked.start == AV_NOPTS_VALUE) {
            continue;
        }
        const Timeline timeline(marked.time_base, m_startTicks, m_startTimeBase);
        const qint64 startMs = timeline.milliseconds(marked.start);
        QMap<QString, QString> tags;
        addTags(tags, marked.metadata);
        chapters.append({startMs, tags.value(QStringLiteral("title"))});
    }
    const auto isEarlier = [](const Chapter& a, const Chapter& b) { return a.startMs < b.startMs; };
    std::stable_sort(chapters.begin(), chapters.end(), isEarlier);
    return chapters;
}

std::optional<QRect> Container::cleanAperture(int stream)
{
    const AVStream& video = this->stream(stream);
    const QSize stored(video.codecpar->width, video.codecpar->height);
    const bool hasBoxes = std::strstr(m_format->iformat->name, "mp4") != nullptr;
    return hasBoxes ? cleanApertureOf(*m_input, video.id, stored) : std::nullopt;
}

} // namespace QtAV
