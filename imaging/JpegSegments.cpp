#include "imaging/JpegSegments.h"

#include <QtEndian>

#include <algorithm>

namespace {

/// With the first byte of the next marker.
const QByteArray startOfImage("\xff\xd8\xff", 3);
const QByteArray startWithHeader("\xff\xd8\xff\xe0", 4);
constexpr char firstApplicationMarker = '\xe0';
constexpr int bytesOfMarker = 2;
constexpr int bytesOfLength = 2;

/// In JFIF's header, counted from the file's beginning: the unit, followed by two numbers of two
/// bytes, and the smallest end of the header.
constexpr int unitOffset = 13;
constexpr int headerEnd = 20;
constexpr char unitOfDotsPerInch = 1;

const QByteArray profileName("ICC_PROFILE\0", 12);
constexpr int mostProfileParts = 255;

QByteArray bigEndian(long number)
{
    QByteArray bytes(2, Qt::Uninitialized);
    qToBigEndian(static_cast<quint16>(number), bytes.data());
    return bytes;
}

bool hasJfifHeader(const QByteArray& jpeg)
{
    return jpeg.size() >= headerEnd && jpeg.startsWith(startWithHeader);
}

/// Where the first segment after JFIF's header begins.
int firstFreeOffset(const QByteArray& jpeg)
{
    if (!hasJfifHeader(jpeg)) {
        return bytesOfMarker;
    }
    const int length = qFromBigEndian<quint16>(jpeg.constData() + 2 * bytesOfMarker);
    return 2 * bytesOfMarker + length;
}

} // namespace

QByteArray JpegSegments::segment(int number, const QByteArray& name, const QByteArray& content)
{
    QByteArray bytes(1, '\xff');
    bytes.append(static_cast<char>(firstApplicationMarker + number));
    bytes.append(bigEndian(bytesOfLength + name.size() + content.size()));
    return bytes.append(name).append(content);
}

QByteArray JpegSegments::colorProfile(const QByteArray& profile)
{
    constexpr int largestPart = largestContent - 12 - 2;
    const int parts = static_cast<int>((profile.size() + largestPart - 1) / largestPart);
    QByteArray segments;
    if (parts > mostProfileParts) {
        return segments;
    }
    for (int part = 0; part < parts; ++part) {
        const QByteArray numbers =
            QByteArray(1, static_cast<char>(part + 1)).append(static_cast<char>(parts));
        segments += segment(2, profileName + numbers, profile.mid(part * largestPart, largestPart));
    }
    return segments;
}

bool JpegSegments::add(QByteArray& jpeg, const QByteArray& segments)
{
    const int offset = firstFreeOffset(jpeg);
    if (!jpeg.startsWith(startOfImage) || offset > jpeg.size()) {
        return false;
    }
    jpeg.insert(offset, segments);
    return true;
}

bool JpegSegments::setResolution(QByteArray& jpeg, long dotsPerInchX, long dotsPerInchY)
{
    if (!hasJfifHeader(jpeg)) {
        return false;
    }
    QByteArray resolution(1, unitOfDotsPerInch);
    for (const long dots : {dotsPerInchX, dotsPerInchY}) {
        resolution += bigEndian(std::clamp<long>(dots, 1, 65535));
    }
    jpeg.replace(unitOffset, resolution.size(), resolution);
    return true;
}
