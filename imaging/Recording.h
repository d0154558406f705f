#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>

#include <optional>

/// When, where, with what and by whom a video was recorded, as far as its file says so. A plain
/// value, for any thread.
struct Recording
{
    /// A moment and, where the file tells it, how far its clock was from UTC.
    struct Moment
    {
        QDateTime time;         ///< of that clock
        bool knowsZone = false; ///< else `time` calls itself UTC, which means nothing

        /// The same so many milliseconds later.
        [[nodiscard]] Moment after(qint64 ms) const { return {time.addMSecs(ms), knowsZone}; }
    };

    struct Place
    {
        double latitude = 0.0;               ///< in degrees, -90 (south) to 90
        double longitude = 0.0;              ///< in degrees, -180 (west) to 180
        std::optional<double> altitude = {}; ///< in metres above the sea
    };

    std::optional<Moment> start; ///< of the video
    std::optional<Place> place;
    QString make;   ///< of the camera
    QString model;  ///< likewise
    QString author; ///< a person's name

    /// What the tags of a file say. Texts are made safe; what makes no sense is passed over.
    /// @param tags  by FFmpeg's keys in small letters
    [[nodiscard]] static Recording of(const QMap<QString, QString>& tags);

    /// "2024-05-06T12:34:56.520+02:00" or "…Z", with less where less is said: a fraction and a zone
    /// may be missing, but not the time. Nothing for a date that only says that the camera's clock
    /// was not set.
    [[nodiscard]] static std::optional<Moment> parseMoment(const QString& text);

    /// "+48.2085+016.3730+171.0/", as ISO 6709 writes places: degrees, or degrees with minutes and
    /// seconds.
    [[nodiscard]] static std::optional<Place> parsePlace(const QString& text);
};

/// The text without what would break a file or a terminal: control characters and what is no
/// character become spaces, spaces at the ends and doubled ones go, and what is too long is cut.
[[nodiscard]] QString plainText(const QString& text);

/// The same, but lines stay apart.
[[nodiscard]] QString plainLines(const QString& text);
