#include "tests/ui/support/TestSettings.h"

#include <QCoreApplication>
#include <QSettings>

testsupport::TestSettings::TestSettings()
{
    QCoreApplication::setApplicationName(QStringLiteral("Morvantile"));
    QCoreApplication::setOrganizationName(QStringLiteral("Morvantile"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir.path());
}
