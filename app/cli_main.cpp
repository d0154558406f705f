// The command line: one batch job, without a window and without a display.

#include "app/CommandLineProcessor.h"
#include "app/StandardStreams.h"
#include "app/Startup.h"
#include "profiles/SettingsFile.h"

#include <QDebug>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdlib>

namespace {

/// Must be called before the application object exists.
void needNoDisplay()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Debug messages are for developers, who enable them with QT_LOGGING_RULES.
void hideDebugLines()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

} // namespace

int main(int argc, char** argv)
{
    if (!StandardStreams::fillGaps()) {
        return EXIT_FAILURE;
    }
    needNoDisplay();
    hideDebugLines();
    Startup::makeSignalsErrors();
    const auto app = Startup::makeApplication<QGuiApplication>(argc, argv);
    Startup::setIdentity();
    for (const SettingsFile::PutAside& damaged : SettingsFile::putDamagedAside()) {
        qWarning().noquote() << SettingsFile::text(damaged);
    }
    Startup::quietVideoLibrary();
    Startup::registerMetaTypes();
    processCommandLine(*app);
    return 0;
}
