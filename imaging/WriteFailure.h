#pragma once

#include <QString>

/// Why a file could not be written.
struct WriteFailure
{
    int error = 0;      ///< the system's number; 0 where the picture could not be encoded
    QString path;       ///< of the file
    qint64 bytes = 0;   ///< what it would have held
    qint64 missing = 0; ///< how much of that there is no room for; 0 where that is not the reason

    /// No file as large can be written there until something is removed.
    [[nodiscard]] bool isLackOfRoom() const { return missing > 0; }

    /// What went wrong with a file, by the system's number.
    [[nodiscard]] static WriteFailure of(const QString& path, qint64 bytes, int error);

    /// For people: the cause, the file and, for a lack of room, how much is missing.
    [[nodiscard]] QString text() const;
};
