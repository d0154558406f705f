#include "tests/qtav/PacketReading.h"

#include "qtav/src/PacketHandle.h"
#include "tests/support/Samples.h"

#include <QTest>

#include <algorithm>

namespace packetreading {

using QtAV::PacketAnswer;

void addFiles(std::initializer_list<const char*> files)
{
    QTest::addColumn<QString>("file");
    for (const char* file : files) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

std::unique_ptr<QtAV::Container> open(const QString& file)
{
    QString error;
    const QtAV::IsCancelled never = [] { return false; };
    auto container = QtAV::Container::open(testsupport::samplePath(file), never, error);
    if (!container) {
        qFatal("%s: %s", qPrintable(file), qPrintable(error));
    }
    return container;
}

std::vector<QtAV::PacketPtr> packetsOf(QtAV::Container& container)
{
    std::vector<QtAV::PacketPtr> packets;
    QtAV::PacketPtr packet;
    while (container.read(packet) == PacketAnswer::Packet) {
        if (packet->stream_index == container.videoStreams().constFirst()) {
            packets.push_back(std::move(packet));
        }
    }
    return packets;
}

char* toString(const Read& read)
{
    const QString text = QStringLiteral("%1packet of %2 bytes at %3 ms (%4 ticks)")
                             .arg(read.isKey ? QStringLiteral("key ") : QString())
                             .arg(read.size)
                             .arg(read.ms)
                             .arg(read.ticks);
    return qstrdup(text.toUtf8().constData());
}

Read described(const AVPacket& packet, const QtAV::Timeline& timeline)
{
    const qint64 ticks = QtAV::presentationTicks(packet);
    return {ticks, timeline.milliseconds(ticks), packet.size,
            (packet.flags & AV_PKT_FLAG_KEY) != 0};
}

OpenVideo::OpenVideo(const QString& file)
    : container(open(file))
    , packets(*container, container->videoStreams().constFirst())
{
    if (!packets.index()) {
        qFatal("%s cannot be indexed", qPrintable(file));
    }
}

QList<Read> OpenVideo::readRest()
{
    QList<Read> all;
    QtAV::PacketPtr packet;
    PacketAnswer answer = packets.read(packet);
    for (; answer == PacketAnswer::Packet; answer = packets.read(packet)) {
        if (packet->stream_index == packets.stream()) {
            all.append(described(*packet, packets.timeline()));
        }
    }
    if (answer != PacketAnswer::End) {
        qFatal("a packet cannot be read: %s", qPrintable(container->errorText()));
    }
    return all;
}

QList<Read> described(const std::deque<QtAV::PacketPtr>& packets, const QtAV::Timeline& timeline)
{
    QList<Read> all;
    for (const QtAV::PacketPtr& packet : packets) {
        all.append(described(*packet, timeline));
    }
    return all;
}

QList<qint64> sortedTimes(const QList<Read>& packets)
{
    QList<qint64> times;
    for (const Read& packet : packets) {
        times.append(packet.ms);
    }
    std::sort(times.begin(), times.end());
    return times;
}

QList<int> keyPlaces(QList<Read> packets)
{
    std::stable_sort(packets.begin(), packets.end(),
                     [](const Read& a, const Read& b) { return a.ticks < b.ticks; });
    QList<int> places;
    for (int place = 0; place < packets.size(); ++place) {
        if (packets.at(place).isKey) {
            places.append(place);
        }
    }
    return places;
}

} // namespace packetreading
