#include "ui/filmstrip/SnapshotIndex.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int version = 1;

/// A list with more entries does not come from this program.
constexpr int mostSnapshots = 10000;

const QLatin1String versionKey("version");
const QLatin1String snapshotsKey("snapshots");

QJsonObject fromMoment(const Recording::Moment& moment)
{
    return {{QStringLiteral("time"), moment.time.toString(Qt::ISODateWithMs)},
            {QStringLiteral("knowsZone"), moment.knowsZone}};
}

QJsonObject fromPlace(const Recording::Place& place)
{
    QJsonObject object{{QStringLiteral("latitude"), place.latitude},
                       {QStringLiteral("longitude"), place.longitude}};
    if (place.altitude) {
        object.insert(QStringLiteral("altitude"), *place.altitude);
    }
    return object;
}

QJsonObject fromRecording(const Recording& recording)
{
    QJsonObject object{{QStringLiteral("make"), recording.make},
                       {QStringLiteral("model"), recording.model},
                       {QStringLiteral("author"), recording.author}};
    if (recording.start) {
        object.insert(QStringLiteral("start"), fromMoment(*recording.start));
    }
    if (recording.place) {
        object.insert(QStringLiteral("place"), fromPlace(*recording.place));
    }
    return object;
}

Recording toRecording(const QJsonObject& object)
{
    Recording recording;
    recording.make = object.value(QLatin1String("make")).toString();
    recording.model = object.value(QLatin1String("model")).toString();
    recording.author = object.value(QLatin1String("author")).toString();
    const QJsonObject start = object.value(QLatin1String("start")).toObject();
    const QDateTime time =
        QDateTime::fromString(start.value(QLatin1String("time")).toString(), Qt::ISODateWithMs);
    if (time.isValid()) {
        recording.start = Recording::Moment{time, start.value(QLatin1String("knowsZone")).toBool()};
    }
    const QJsonObject place = object.value(QLatin1String("place")).toObject();
    if (!place.isEmpty()) {
        Recording::Place read;
        read.latitude = place.value(QLatin1String("latitude")).toDouble();
        read.longitude = place.value(QLatin1String("longitude")).toDouble();
        if (place.contains(QLatin1String("altitude"))) {
            read.altitude = place.value(QLatin1String("altitude")).toDouble();
        }
        recording.place = read;
    }
    return recording;
}

QJsonObject fromSource(const PictureSource& source)
{
    QJsonObject object{{QStringLiteral("video"), source.video},
                       {QStringLiteral("seconds"), source.seconds},
                       {QStringLiteral("tickNumerator"), source.tickNumerator},
                       {QStringLiteral("tickDenominator"), source.tickDenominator},
                       {QStringLiteral("width"), source.frameSize.width()},
                       {QStringLiteral("height"), source.frameSize.height()},
                       {QStringLiteral("recording"), fromRecording(source.recording)}};
    if (source.frameNumber) {
        object.insert(QStringLiteral("frame"), *source.frameNumber);
    }
    return object;
}

PictureSource toSource(const QJsonObject& object)
{
    PictureSource source;
    source.video = object.value(QLatin1String("video")).toString();
    source.seconds = object.value(QLatin1String("seconds")).toDouble();
    source.tickNumerator = object.value(QLatin1String("tickNumerator")).toInt();
    source.tickDenominator = std::max(1, object.value(QLatin1String("tickDenominator")).toInt());
    source.frameSize = {object.value(QLatin1String("width")).toInt(),
                        object.value(QLatin1String("height")).toInt()};
    source.recording = toRecording(object.value(QLatin1String("recording")).toObject());
    if (object.contains(QLatin1String("frame"))) {
        source.frameNumber = qint64(object.value(QLatin1String("frame")).toDouble());
    }
    return source;
}

QJsonObject fromSnapshot(const KeptSnapshot& snapshot)
{
    return {{QStringLiteral("id"), snapshot.id},
            {QStringLiteral("takenAt"), snapshot.takenAt.toString(Qt::ISODateWithMs)},
            {QStringLiteral("profileId"), snapshot.profileId},
            {QStringLiteral("profileName"), snapshot.profileName},
            {QStringLiteral("transfer"), int(snapshot.colours.transfer)},
            {QStringLiteral("primaries"), int(snapshot.colours.primaries)},
            {QStringLiteral("isSaved"), snapshot.isSaved},
            {QStringLiteral("source"), fromSource(snapshot.source)}};
}

/// Used for file names, so it must not lead out of their folder.
bool isName(const QString& id)
{
    static const QRegularExpression name(QStringLiteral("\\A[A-Za-z0-9-]{1,64}\\z"));
    return name.match(id).hasMatch();
}

std::optional<KeptSnapshot> toSnapshot(const QJsonObject& object)
{
    using Colours = QtAV::StoredColours;
    KeptSnapshot snapshot;
    snapshot.id = object.value(QLatin1String("id")).toString();
    snapshot.takenAt =
        QDateTime::fromString(object.value(QLatin1String("takenAt")).toString(), Qt::ISODateWithMs);
    snapshot.profileId = object.value(QLatin1String("profileId")).toString();
    snapshot.profileName = object.value(QLatin1String("profileName")).toString();
    const int transfer = object.value(QLatin1String("transfer")).toInt();
    const int primaries = object.value(QLatin1String("primaries")).toInt();
    snapshot.isSaved = object.value(QLatin1String("isSaved")).toBool();
    snapshot.source = toSource(object.value(QLatin1String("source")).toObject());
    const bool areColoursKnown = transfer >= 0 && transfer <= int(Colours::Transfer::Hlg) &&
                                 primaries >= 0 && primaries <= int(Colours::Primaries::Bt2020);
    if (!isName(snapshot.id) || !snapshot.takenAt.isValid() || !areColoursKnown ||
        !std::isfinite(snapshot.source.seconds)) {
        return {};
    }
    snapshot.colours.transfer = static_cast<Colours::Transfer>(transfer);
    snapshot.colours.primaries = static_cast<Colours::Primaries>(primaries);
    return snapshot;
}

} // namespace

QByteArray SnapshotIndex::toJson(const QVector<KeptSnapshot>& snapshots)
{
    QJsonArray array;
    for (const KeptSnapshot& snapshot : snapshots) {
        array.append(fromSnapshot(snapshot));
    }
    const QJsonObject root{{versionKey, version}, {snapshotsKey, array}};
    return QJsonDocument(root).toJson();
}

std::optional<QVector<KeptSnapshot>> SnapshotIndex::fromJson(const QByteArray& json)
{
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    const QJsonValue list = root.value(snapshotsKey);
    if (root.value(versionKey).toInt() != version || !list.isArray() ||
        list.toArray().size() > mostSnapshots) {
        return {};
    }
    QVector<KeptSnapshot> snapshots;
    const QJsonArray array = list.toArray();
    for (const QJsonValue& value : array) {
        const std::optional<KeptSnapshot> snapshot = toSnapshot(value.toObject());
        if (!snapshot) {
            return {};
        }
        snapshots.append(*snapshot);
    }
    return snapshots;
}
