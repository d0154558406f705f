#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Conversions between the system's bytes and Qt's texts. Needs the FileNameCodec.
namespace stills {

[[nodiscard]] QString pathOf(const std::string& bytes);
[[nodiscard]] std::string bytesOf(const QString& path);

/// Text for a terminal or a log: the system's own bytes, on one line. Control characters become
/// question marks, so that no name can move the cursor.
[[nodiscard]] QByteArray oneLine(const QString& text);

/// Text for display: invalid characters become question marks.
[[nodiscard]] QString readable(const QString& text);

/// "1:02:03" or "0:42": hours where there are any, minutes and seconds.
[[nodiscard]] QString clockTime(qint64 ms);

/// The same with milliseconds: "0:42.040".
[[nodiscard]] QString exactClockTime(qint64 ms);

} // namespace stills
