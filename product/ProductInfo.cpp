#include "product/ProductInfo.h"

QString ProductInfo::name()
{
    return QStringLiteral("Morvantile");
}

QString ProductInfo::version()
{
    return QStringLiteral(MORVANTILE_VERSION);
}

QString ProductInfo::domain()
{
    return QStringLiteral("morvantile.example");
}
