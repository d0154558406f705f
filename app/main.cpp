// The window. Its arguments are videos to open; morvantile-cli and stills are the command lines.

#include "app/FileArguments.h"
#include "app/GraphicsPolicy.h"
#include "app/MemoryPolicy.h"
#include "app/Presentation.h"
#include "app/RunningInstance.h"
#include "app/StandardStreams.h"
#include "app/Startup.h"
#include "app/SupportedOS.h"
#include "profiles/SettingsFile.h"
#include "ui/language/Languages.h"

#include <QtAVWidgets>

#include <QApplication>
#include <QSettings>

#include <cstdlib>

int main(int argc, char** argv)
{
    if (!StandardStreams::fillGaps()) {
        return EXIT_FAILURE;
    }
#if QT_VERSION_MAJOR < 6 // later versions do so by default
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
#endif
    MemoryPolicy::returnFreedMemory();
    GraphicsPolicy::avoidImitatedOpenGL();
    Startup::makeSignalsErrors();
    const auto app = Startup::makeApplication<QApplication>(argc, argv);
    Startup::setIdentity();
    if (!checkSupportedOS(*app)) {
        std::exit(-1);
    }
    const QStringList files = FileArguments::in(QCoreApplication::arguments().mid(1));
    if (RunningInstance::passOn(files, RunningInstance::meetingPlace())) {
        return 0;
    }
    QtAV::Widgets::registerRenderers();
    Startup::quietVideoLibrary();
    Startup::registerMetaTypes();
    const auto damagedFiles = SettingsFile::putDamagedAside();
    // Kept for the whole run, so that temporary settings objects share its open file.
    const QSettings settings;
    const QString asked = Languages::inArguments(QCoreApplication::arguments());
    Languages::use(*app, asked.isEmpty() ? Languages::chosen(settings) : asked);
    QStringList news;
    for (const SettingsFile::PutAside& damaged : damagedFiles) {
        news += SettingsFile::text(damaged);
    }
    const QString problem = SettingsFile::writeProblem();
    if (!problem.isEmpty()) {
        news += problem;
    }
    showMainWindow(*app, files, news);
    return 0;
}
