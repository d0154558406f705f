#pragma once

#include "tests/ui/support/NextBox.h"
#include "tests/ui/support/TestSettings.h"
#include "ui/mainwindow/MainWindow.h"

#include <QString>

class ImageProfile;

namespace QtAV {
class AVPlayer;
} // namespace QtAV

namespace testsupport {

/// 100 frames, 25 a second.
inline const QString clip = QStringLiteral("h264_bframes.mp4");

/// A shown main window with settings and a temporary folder of its own, and ways to reach what is
/// in it. Create it on the case's stack.
class OpenWindow
{
public:
    OpenWindow();

    MainWindow* operator->() { return &m_window; }
    MainWindow& window() { return m_window; }
    const TestDir& dir() const { return m_settings.dir(); }

    /// The object of the form with that name; ends the test program if there is none.
    template <typename Object>
    Object& find(const char* name)
    {
        auto* const found = m_window.findChild<Object*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s in the window", name);
        }
        return *found;
    }

    QtAV::AVPlayer& player();

    /// A copy of a sample in the case's folder.
    QString copyOf(const QString& sample, const QString& name);

    /// Opens a video and waits until its first frame is on screen, then pauses. False when that
    /// takes too long.
    [[nodiscard]] bool openPaused(const QString& path);

    /// Takes a snapshot and waits for it. False when none comes.
    [[nodiscard]] bool takeSnapshot();

    /// Chooses the image profile of that name, as a user does.
    void chooseImageProfile(const QString& name);

private:
    TestSettings m_settings;
    MainWindow m_window;
};

/// Waits until the frame of that time is on screen, in milliseconds. False when that takes too
/// long.
[[nodiscard]] bool waitForPosition(const QtAV::AVPlayer& player, qint64 ms);

/// Presses a key where the keyboard is.
void press(int key, Qt::KeyboardModifiers modifiers = {});

/// Adds an image profile of that name and width to those of all windows, which own it.
ImageProfile* addImageProfile(const QString& name, int width);

} // namespace testsupport
