#include "batch/SecondsText.h"

#include <QLocale>
#include <QRegularExpression>

#include <cstdlib>

namespace {

constexpr int millisecondsPerSecond = 1000;
constexpr int fractionDigits = 3;
/// More than three hundred years.
constexpr double largestSeconds = 1e10;

} // namespace

QString secondsText(qint64 milliseconds)
{
    const qint64 whole = milliseconds / millisecondsPerSecond;
    const int rest = static_cast<int>(milliseconds % millisecondsPerSecond);
    if (rest == 0) {
        return QString::number(whole);
    }
    QString fraction =
        QStringLiteral("%1").arg(std::abs(rest), fractionDigits, 10, QLatin1Char('0'));
    while (fraction.endsWith(QLatin1Char('0'))) {
        fraction.chop(1);
    }
    const QString sign = milliseconds < 0 ? QStringLiteral("-") : QString();
    return sign + QString::number(std::abs(whole)) + QLocale().decimalPoint() + fraction;
}

std::optional<qint64> millisecondsOf(const QString& seconds)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]+[.,]?[0-9]*|[.,][0-9]+)$"));
    const QString text = seconds.trimmed();
    if (!pattern.match(text).hasMatch()) {
        return std::nullopt;
    }
    const double number = QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    if (number > largestSeconds) {
        return std::nullopt;
    }
    return qRound64(number * millisecondsPerSecond);
}
