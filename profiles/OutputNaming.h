#pragma once

#include <QString>

/// How the files of a video's pictures are named. A plain value, for any thread.
struct OutputNaming
{
    static constexpr int noCounter = -1;

    QString prefix;
    QString baseName;                      ///< in place of the video's where it is not empty
    QString suffix = QStringLiteral("-");  ///< also where no counter follows
    QString type = QStringLiteral("jpeg"); ///< what comes after the dot
    bool padsZeros = true;                 ///< counters have five digits at least

    /// The name without a folder: prefix, base name, suffix, counter, dot and type.
    /// @param counter  noCounter for a name without one.
    [[nodiscard]] QString fileName(const QString& videoBaseName, int counter) const;
};
