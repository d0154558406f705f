#pragma once

#include "qtav/src/VideoPackets.h"

#include <QList>
#include <QString>

#include <deque>
#include <initializer_list>
#include <memory>
#include <vector>

/// Helpers for tests of the library's packets.
namespace packetreading {

/// Adds a row with a column "file" for each sample.
void addFiles(std::initializer_list<const char*> files);

/// Opens a sample; ends the test program on failure.
[[nodiscard]] std::unique_ptr<QtAV::Container> open(const QString& file);

/// All packets of the first video stream as returned by the container.
[[nodiscard]] std::vector<QtAV::PacketPtr> packetsOf(QtAV::Container& container);

/// Identifies a packet of a stream.
struct Read
{
    qint64 ticks; ///< presentation time; AV_NOPTS_VALUE if it has no time at all
    qint64 ms;
    int size;
    bool isKey;

    bool operator==(const Read& other) const
    {
        return ticks == other.ticks && size == other.size && isKey == other.isKey;
    }
};

/// "key packet of 812 bytes at 480 ms", for the messages of failed comparisons.
char* toString(const Read& read);

[[nodiscard]] Read described(const AVPacket& packet, const QtAV::Timeline& timeline);

/// An open sample and the packets of its first video stream; a raw stream is indexed.
class OpenVideo
{
public:
    /// Ends the test program if the sample cannot be opened.
    explicit OpenVideo(const QString& file);

    /// The video packets from here to the end. Ends the test program if one cannot be read.
    [[nodiscard]] QList<Read> readRest();

    std::unique_ptr<QtAV::Container> container;
    QtAV::VideoPackets packets;
};

[[nodiscard]] QList<Read> described(const std::deque<QtAV::PacketPtr>& packets,
                                    const QtAV::Timeline& timeline);

/// The times in presentation order, in milliseconds.
[[nodiscard]] QList<qint64> sortedTimes(const QList<Read>& packets);

/// The positions of the key packets in presentation order, counted from 0.
[[nodiscard]] QList<int> keyPlaces(QList<Read> packets);

} // namespace packetreading
