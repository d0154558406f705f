#include "tests/ui/mainwindow/OpenWindow.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/Samples.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTest>

namespace testsupport {

namespace {

constexpr int limitMs = 60000;

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

void OpenWindow::chooseImageProfile(const QString& name)
{
    auto& box = find<QComboBox>("imageProfileComboBox");
    box.setCurrentIndex(box.findText(name));
    m_window.on_imageProfileComboBox_activated(box.currentIndex());
}

bool waitForPosition(const QtAV::AVPlayer& player, qint64 ms)
{
    return QTest::qWaitFor([&player, ms] { return player.displayPosition() == ms; }, limitMs);
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
