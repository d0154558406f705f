#include "imaging/Recording.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace {

constexpr int longestText = 1000;

/// MP4 counts from 1904 and cameras from 1970: a time at the start of either was never set.
constexpr int firstYear = 1905;

/// Keys of tags, the most specific ones first.
const QStringList& momentKeys()
{
    static const QStringList keys{QStringLiteral("com.apple.quicktime.creationdate"),
                                  QStringLiteral("creation_time"), QStringLiteral("date_recorded"),
                                  QStringLiteral("date")};
    return keys;
}

const QStringList& placeKeys()
{
    static const QStringList keys{QStringLiteral("com.apple.quicktime.location.iso6709"),
                                  QStringLiteral("location"), QStringLiteral("location-eng")};
    return keys;
}

/// The first of these tags whose plain text is not empty.
QString firstText(const QMap<QString, QString>& tags, const QStringList& keys)
{
    for (const QString& key : keys) {
        const QString text = plainText(tags.value(key));
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}

/// The first of these tags that can be parsed.
template <typename Value>
std::optional<Value> firstOf(const QMap<QString, QString>& tags, const QStringList& keys,
                             std::optional<Value> (*parse)(const QString&))
{
    for (const QString& key : keys) {
        if (const std::optional<Value> value = parse(tags.value(key))) {
            return value;
        }
    }
    return std::nullopt;
}

/// Degrees from "48.2", "4812.5" or "481230.5"; the degrees have `wholeDigits` digits.
double degreesFrom(const QString& digits, int wholeDigits)
{
    const int point = digits.indexOf(QLatin1Char('.'));
    const int whole = point < 0 ? digits.size() : point;
    if (whole <= wholeDigits) {
        return digits.toDouble();
    }
    const double degrees = digits.left(wholeDigits).toDouble();
    if (whole <= wholeDigits + 2) {
        return degrees + digits.mid(wholeDigits).toDouble() / 60;
    }
    return degrees + digits.mid(wholeDigits, 2).toDouble() / 60 +
           digits.mid(wholeDigits + 2).toDouble() / 3600;
}

double coordinate(const QString& text, int wholeDigits)
{
    const double degrees = degreesFrom(text.mid(1), wholeDigits);
    return text.startsWith(QLatin1Char('-')) ? -degrees : degrees;
}

bool isCharacter(uint code)
{
    const bool isControl = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool isSurrogate = code >= 0xd800 && code < 0xe000;
    const bool isNone = (code & 0xfffe) == 0xfffe || (code >= 0xfdd0 && code < 0xfdf0);
    return !isControl && !isSurrogate && !isNone;
}

/// The valid characters of the text; others, except `keptControl`, are replaced by spaces.
QString characters(const QString& text, uint keptControl)
{
    QVector<uint> codes = text.left(2 * longestText).toUcs4();
    if (codes.size() > longestText) {
        codes.resize(longestText);
    }
    for (uint& code : codes) {
        code = isCharacter(code) || code == keptControl ? code : ' ';
    }
    return QString::fromUcs4(codes.constData(), codes.size());
}

} // namespace

QString plainText(const QString& text)
{
    return characters(text, ' ').simplified();
}

QString plainName(const QString& text)
{
    return characters(text, ' ');
}

QString plainLines(const QString& text)
{
    return characters(text, '\n');
}

std::optional<Recording::Moment> Recording::parseMoment(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(\\d{4})[-:](\\d\\d)[-:](\\d\\d)[T ](\\d\\d):(\\d\\d)(?::(\\d\\d)"
                       "(?:[.,](\\d{1,9}))?)? ?(Z|[+-]\\d\\d:?\\d\\d)?$"));
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    const auto number = [&match](int group) { return match.captured(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    const int ms = match.captured(7).leftJustified(3, QLatin1Char('0'), true).toInt();
    const QTime time(number(4), number(5), number(6), ms);
    if (!match.hasMatch() || !date.isValid() || !time.isValid() || date.year() < firstYear) {
        return std::nullopt;
    }
    const QString zone = match.captured(8);
    int offset = 0;
    if (zone.size() > 1) {
        offset = zone.mid(1, 2).toInt() * 3600 + zone.right(2).toInt() * 60;
        offset = zone.startsWith(QLatin1Char('-')) ? -offset : offset;
    }
    const QDateTime moment(date, time, Qt::OffsetFromUTC, offset);
    if (std::abs(offset) > 14 * 3600 || moment.toMSecsSinceEpoch() == 0) {
        return std::nullopt;
    }
    return Moment{moment, !zone.isEmpty()};
}

std::optional<Recording::Place> Recording::parsePlace(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([+-]\\d{1,6}(?:\\.\\d{1,12})?)([+-]\\d{1,7}(?:\\.\\d{1,12})?)"
                       "([+-]\\d{1,6}(?:\\.\\d{1,12})?)?(?:CRS.{0,40})?/?$"));
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    constexpr int latitudeDigits = 2;
    constexpr int longitudeDigits = 3;
    Place place;
    place.latitude = coordinate(match.captured(1), latitudeDigits);
    place.longitude = coordinate(match.captured(2), longitudeDigits);
    if (!match.captured(3).isEmpty()) {
        place.altitude = match.captured(3).toDouble();
    }
    const bool isOnEarth = std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180;
    return isOnEarth ? std::make_optional(place) : std::nullopt;
}

Recording Recording::of(const QMap<QString, QString>& tags)
{
    Recording recording;
    recording.start = firstOf(tags, momentKeys(), &Recording::parseMoment);
    recording.place = firstOf(tags, placeKeys(), &Recording::parsePlace);
    recording.make = firstText(tags, {QStringLiteral("com.apple.quicktime.make"),
                                      QStringLiteral("com.android.manufacturer"),
                                      QStringLiteral("make"), QStringLiteral("manufacturer")});
    recording.model =
        firstText(tags, {QStringLiteral("com.apple.quicktime.model"),
                         QStringLiteral("com.android.model"), QStringLiteral("model")});
    recording.author = firstText(tags, {QStringLiteral("artist"), QStringLiteral("author"),
                                        QStringLiteral("com.apple.quicktime.artist"),
                                        QStringLiteral("com.apple.quicktime.author")});
    return recording;
}
