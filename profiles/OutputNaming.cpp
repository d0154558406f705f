#include "profiles/OutputNaming.h"

namespace {

constexpr int paddedCounterWidth = 5;

QString counterText(int counter, bool padsZeros)
{
    if (counter == OutputNaming::noCounter) {
        return QString();
    }
    if (!padsZeros) {
        return QString::number(counter);
    }
    return QStringLiteral("%1").arg(qlonglong(counter), paddedCounterWidth, 10, QLatin1Char('0'));
}

} // namespace

QString OutputNaming::fileName(const QString& videoBaseName, int counter) const
{
    return prefix + (baseName.isEmpty() ? videoBaseName : baseName) + suffix +
           counterText(counter, padsZeros) + QLatin1Char('.') + type;
}
