#include "profiles/OutputNaming.h"

namespace {

constexpr int paddedCounterWidth = 5;

} // namespace

QString OutputNaming::counterText(int counter) const
{
    if (counter == noCounter) {
        return QString();
    }
    if (!padsZeros) {
        return QString::number(counter);
    }
    return QStringLiteral("%1").arg(qlonglong(counter), paddedCounterWidth, 10, QLatin1Char('0'));
}

QString OutputNaming::fileName(const QString& videoBaseName, int counter) const
{
    return prefix + (baseName.isEmpty() ? videoBaseName : baseName) + suffix +
           counterText(counter) + QLatin1Char('.') + type;
}
