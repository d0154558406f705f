#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>

#include <optional>

/// When, where, with what and by whom a video was recorded, as far as its file states it. A plain
/// value, for any thread.
struct Recording
{
    /// A time and, if the file states it, the offset of its clock from UTC.
    struct Moment
    {
        QDateTime time;         ///< in local time of that clock
        bool knowsZone = false; ///< if false, the UTC specification of `time` is meaningless

        /// The same moment this many milliseconds later.
        [[nodiscard]] Moment after(qint64 ms) const { return {time.addMSecs(ms), knowsZone}; }
    };

    struct Place
    {
        double latitude = 0.0;               ///< in degrees, -90 (south) to 90
        double longitude = 0.0;              ///< in degrees, -180 (west) to 180
        std::optional<double> altitude = {}; ///< in metres above the sea
    };

    std::optional<Moment> start; ///< start of the video
    std::optional<Place> place;
    QString make;   ///< of the camera
    QString model;  ///< of the camera
    QString author; ///< a person's name

    /// Evaluates the tags of a file. Texts are sanitised; invalid ones are ignored.
    /// @param tags  by FFmpeg's keys in lower case
    [[nodiscard]] static Recording of(const QMap<QString, QString>& tags);

    /// Parses "2024-05-06T12:34:56.520+02:00" or "…Z"; fraction and zone are optional, the time is
    /// not. Nothing for a date that only shows that the camera's clock was not set.
    [[nodiscard]] static std::optional<Moment> parseMoment(const QString& text);

    /// Parses "+48.2085+016.3730+171.0/", a location by ISO 6709, in degrees, or in degrees with
    /// minutes and seconds.
    [[nodiscard]] static std::optional<Place> parsePlace(const QString& text);
};

/// Removes what would break a file or a terminal: control and invalid characters become spaces,
/// spaces at the ends and doubled ones are removed, and long texts are truncated.
[[nodiscard]] QString plainText(const QString& text);

/// Like plainText(), but keeps all spaces, of whatever kind: for names and paths of files.
[[nodiscard]] QString plainName(const QString& text);

/// Like plainText(), but keeps all spaces and line breaks.
[[nodiscard]] QString plainLines(const QString& text);
