#pragma once

#include <QString>

/// Naming rules for the files of a video's pictures. A plain value, for any thread.
struct OutputNaming
{
    static constexpr int noCounter = -1;

    QString prefix;
    QString baseName;                      ///< replaces the video's name if not empty
    QString suffix = QStringLiteral("-");  ///< used even if no counter follows
    QString type = QStringLiteral("jpeg"); ///< what comes after the dot
    bool padsZeros = true;                 ///< pad counters to at least five digits

    /// The counter as it stands in names; empty for noCounter.
    [[nodiscard]] QString counterText(int counter) const;

    /// The name without a folder: prefix, base name, suffix, counter, dot and type.
    /// @param counter  noCounter for a name without one.
    [[nodiscard]] QString fileName(const QString& videoBaseName, int counter) const;
};
