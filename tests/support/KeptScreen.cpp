// Part of each test with Qt Gui that runs under leak sanitizer.

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

namespace {

const void* keptScreen = nullptr;

/// The offscreen platform never deletes its screen. A known leak could be suppressed, but naming
/// the functions that it comes from takes longer than many a test.
void keepScreen()
{
    if (const QScreen* const screen = QGuiApplication::primaryScreen()) {
        keptScreen = screen->handle();
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(keepScreen)
