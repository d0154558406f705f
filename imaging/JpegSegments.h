#pragma once

#include <QByteArray>

/// Segments of application data in JPEG files: resolution, colour profile, EXIF, XMP.
///
/// They are added to the encoded picture in place, because libraries that rewrite the file copy it
/// several times, which takes a third as long as encoding it. Stateless: callable from any thread.
namespace JpegSegments {

/// Maximum size of the name and the content of a segment together.
constexpr int largestContent = 65535 - 2;

/// One segment.
///
/// @param number   0 to 15: the first one contains JFIF's header, 1 EXIF or XMP, 2 a colour profile
/// @param name     states the kind of content, with its terminating zeros
/// @param content  with the name, at most `largestContent` bytes
[[nodiscard]] QByteArray segment(int number, const QByteArray& name, const QByteArray& content);

/// The segments of a colour profile, which decoders join again; empty if it is too large for any
/// JPEG.
[[nodiscard]] QByteArray colorProfile(const QByteArray& profile);

/// Adds segments at the beginning, after JFIF's header if there is one.
///
/// @return false, and the content unchanged, if that is no JPEG
[[nodiscard]] bool add(QByteArray& jpeg, const QByteArray& segments);

/// Sets the resolution in JFIF's header.
///
/// @param dotsPerInchX,dotsPerInchY  limited to 1 to 65535
/// @return false, and the content unchanged, if it has no such header at its beginning
[[nodiscard]] bool setResolution(QByteArray& jpeg, long dotsPerInchX, long dotsPerInchY);

} // namespace JpegSegments
