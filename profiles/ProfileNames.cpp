#include "profiles/ProfileNames.h"

#include "profiles/ProfileManager.h"

#include <QCoreApplication>

QString ProfileNames::storedStandard()
{
    return QLatin1Char('[') + ProfileManager::tr("Unnamed Settings") + QLatin1Char(']');
}

QString ProfileNames::shown(const QString& storedName)
{
    // The program may have used another language when the profile was created.
    const bool isStandard =
        storedName == storedStandard() || storedName == QLatin1String("[Unnamed Settings]");
    return isStandard ? QCoreApplication::translate("ProfileNames", "Standard") : storedName;
}
