#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QtEndian>

/// Reads and writes IVF files, the plainest container, so that tests can make their own packets.
namespace ivf {

template <typename Number>
[[nodiscard]] QByteArray littleEndian(Number number)
{
    QByteArray bytes(int(sizeof(Number)), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

struct Packet
{
    quint64 time;
    QByteArray data;
};

/// A header, and packets with their times.
struct File
{
    QByteArray header;
    QList<Packet> packets;
};

/// Ends the test program on failure, as write() does.
[[nodiscard]] inline File read(const QString& path)
{
    constexpr int headerBytes = 32;
    constexpr int packetHeaderBytes = 12;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qUtf8Printable(path));
    }
    const QByteArray bytes = file.readAll();
    File read{bytes.left(headerBytes), {}};
    for (int place = headerBytes; place < bytes.size();) {
        const auto size = int(qFromLittleEndian<quint32>(bytes.constData() + place));
        const auto time = qFromLittleEndian<quint64>(bytes.constData() + place + 4);
        read.packets.append({time, bytes.mid(place + packetHeaderBytes, size)});
        place += packetHeaderBytes + size;
    }
    return read;
}

inline void write(const QString& path, const File& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    file.write(content.header);
    for (const Packet& packet : content.packets) {
        file.write(littleEndian(quint32(packet.data.size())) + littleEndian(packet.time) +
                   packet.data);
    }
}

} // namespace ivf
