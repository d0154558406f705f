#pragma once

#include <QString>

/// What the product is called and where it is found.
namespace ProductInfo {

/// The name of the application and of its organisation: together they fix where the settings are.
inline QString name()
{
    return QStringLiteral("Morvantile");
}

inline QString version()
{
    return QStringLiteral("4.0.2");
}

inline QString domain()
{
    return QStringLiteral("morvantile.example");
}

} // namespace ProductInfo
