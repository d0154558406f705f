#include "tests/ui/mainwindow/OpenWindow.h"

#include <QtAV/AVPlayer.h>

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTest>

namespace testsupport {

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
    if (!QTest::qWaitFor(isShown, patienceMs)) {
        return false;
    }
    m_window.pause();
    return QTest::qWaitFor([this] { return player().isPaused(); }, patienceMs);
}

bool OpenWindow::takeSnapshot()
{
    m_window.snapshotButtonPressed();
    const QAction& copy = find<QAction>("actionCopy_Snapshot");
    return QTest::qWaitFor([&copy] { return copy.isEnabled(); }, patienceMs);
}

void OpenWindow::chooseImageProfile(const QString& name)
{
    auto& box = find<QComboBox>("imageProfileComboBox");
    box.setCurrentIndex(box.findText(name));
    m_window.on_imageProfileComboBox_activated(box.currentIndex());
}

bool waitForPosition(const QtAV::AVPlayer& player, qint64 ms)
{
    return QTest::qWaitFor([&player, ms] { return player.displayPosition() == ms; }, patienceMs);
}

void press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

ImageProfile* addImageProfile(const QString& name, int width)
{
    ProfileManager& manager = *ImageProfile::profileManager();
    auto* const profile = static_cast<ImageProfile*>(manager.createProfile());
    profile->setName(name);
    profile->setImageWidth(width);
    manager.addProfile(profile);
    return profile;
}

} // namespace testsupport
