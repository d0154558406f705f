#pragma once

#include <QString>

/// Why a file could not be written.
struct WriteFailure
{
    int error = 0;      ///< the system's error number; 0 if the picture could not be encoded
    QString path;       ///< of the file
    qint64 bytes = 0;   ///< the size that it would have had
    qint64 missing = 0; ///< how much of that does not fit; 0 if that is not the reason

    /// True if files of this size cannot be written there until something is removed.
    [[nodiscard]] bool isLackOfRoom() const { return missing > 0; }

    /// True if the folder or its disk takes no file at all: it is gone, protected or read-only.
    /// False if only what stands under this name cannot be replaced. Asks the file system.
    [[nodiscard]] bool isOfFolder() const;

    /// Describes a failure by the system's error number.
    [[nodiscard]] static WriteFailure of(const QString& path, qint64 bytes, int error);

    /// A text for people: the cause, the file and, if room is lacking, how much is missing.
    [[nodiscard]] QString text() const;
};
