#include "app/SupportedOS.h"

#include <QApplication>
#include <QStringList>

#ifdef Q_OS_MACOS
#include "ui/boxer.h"

#include <QSysInfo>
#endif

bool isSupportedOS(const QString& productVersion)
{
    const QStringList parts = productVersion.split(QLatin1Char('.'));
    if (parts.size() < 2) {
        return false;
    }
    return parts.at(0).toInt() != 10 || parts.at(1).toInt() > 9;
}

#ifdef Q_OS_MACOS

bool checkSupportedOS(QApplication& app)
{
    Q_UNUSED(app)
    if (isSupportedOS(QSysInfo::productVersion())) {
        return true;
    }
    const QByteArray message =
        QApplication::tr("I'm sorry,\n\nMorvantile requires macOS 10.10 (Yosemite) or higher")
            .toUtf8();
    const QByteArray title = QApplication::tr("Unsupported OS").toUtf8();
    // The box has only one button, so its result is irrelevant.
    static_cast<void>(boxer::show(message.constData(), title.constData(), boxer::Style::Info,
                                  boxer::Buttons::OK));
    return false;
}

#else

bool checkSupportedOS(QApplication& app)
{
    Q_UNUSED(app)
    return true;
}

#endif
