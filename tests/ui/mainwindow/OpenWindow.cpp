#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/Samples.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QFile>
#include <QTest>

namespace testsupport {

namespace {

constexpr int limitMs = 30000;

} // namespace

OpenWindow::OpenWindow()
{
    m_window.resize(800, 600);
    m_window.show();
}

QtAV::AVPlayer& OpenWindow::player()
{
    return *m_window.findChild<QtAV::AVPlayer*>();
}

QString OpenWindow::copyOf(const QString& sample, const QString& name)
{
    const QString copy = dir().filePath(name);
    if (!QFile::copy(samplePath(sample), copy)) {
        qFatal("cannot copy %s", qPrintable(sample));
    }
    return copy;
}

bool OpenWindow::openPaused(const QString& path)
{
    m_window.openVideo(path);
    const auto isShown = [this] { return player().displayedFrame().isValid(); };
    if (!QTest::qWaitFor(isShown, limitMs)) {
        return false;
    }
    m_window.pause();
    return QTest::qWaitFor([this] { return player().isPaused(); }, limitMs);
}

bool OpenWindow::takeSnapshot()
{
    m_window.snapshotButtonPressed();
    const QAction& copy = find<QAction>("actionCopy_Snapshot");
    return QTest::qWaitFor([&copy] { return copy.isEnabled(); }, limitMs);
}

} // namespace testsupport
