#include "ui/mainwindow/FullScreen.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

class FullScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void others_areHidden_andReturn();
    void others_follow_whenTheSystemLeavesTheFullScreen();
    void others_follow_whenTheSystemEntersTheFullScreen();
    void minimizedWindow_isStillFullScreen_whenItComesBack();
    void leaving_restoresWhatWasBefore_whoeverEntered_data();
    void leaving_restoresWhatWasBefore_whoeverEntered();
};

namespace {

struct Window
{
    Window()
    {
        window.setMenuBar(bar);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("the window is not shown");
        }
    }

    /// Changes the state as a window manager does.
    void change(Qt::WindowStates states) { window.windowHandle()->setWindowStates(states); }

    QMainWindow window;
    QMenuBar* bar = new QMenuBar(&window);
    FullScreen& fullScreen = *new FullScreen(window, {bar});
    QSignalSpy toggled{&fullScreen, &FullScreen::toggled};
};

} // namespace

void FullScreenTest::others_areHidden_andReturn()
{
    const Window shown;
    shown.fullScreen.setOn(true);
    QVERIFY(shown.window.isFullScreen());
    QVERIFY(shown.bar->isHidden());
    QVERIFY(shown.fullScreen.isOn());
    shown.fullScreen.setOn(false);
    QVERIFY(!shown.window.isFullScreen());
    QVERIFY(shown.bar->isVisible());
    QCOMPARE(shown.toggled, (QList<QVariantList>{{true}, {false}}));
}

void FullScreenTest::others_follow_whenTheSystemLeavesTheFullScreen()
{
    Window shown;
    shown.fullScreen.setOn(true);
    shown.change(Qt::WindowNoState);
    QTRY_VERIFY(!shown.window.isFullScreen());
    QVERIFY(shown.bar->isVisible());
    QVERIFY(!shown.fullScreen.isOn());
    QCOMPARE(shown.toggled, (QList<QVariantList>{{true}, {false}}));
}

void FullScreenTest::others_follow_whenTheSystemEntersTheFullScreen()
{
    Window shown;
    shown.change(Qt::WindowFullScreen);
    QTRY_VERIFY(shown.window.isFullScreen());
    QVERIFY(shown.bar->isHidden());
    QVERIFY(shown.fullScreen.isOn());
    QCOMPARE(shown.toggled, (QList<QVariantList>{{true}}));
}

void FullScreenTest::minimizedWindow_isStillFullScreen_whenItComesBack()
{
    Window shown;
    shown.fullScreen.setOn(true);
    shown.change(Qt::WindowMinimized);
    QTRY_VERIFY(shown.window.isMinimized());
    shown.change(Qt::WindowFullScreen);
    QTRY_VERIFY(!shown.window.isMinimized());
    QVERIFY(shown.bar->isHidden());
    QCOMPARE(shown.toggled, (QList<QVariantList>{{true}}));
}

void FullScreenTest::leaving_restoresWhatWasBefore_whoeverEntered_data()
{
    QTest::addColumn<bool>("isOfTheSystem");
    QTest::addColumn<bool>("wasMaximized");
    QTest::newRow("key, normal") << false << false;
    QTest::newRow("key, maximized") << false << true;
    QTest::newRow("system, normal") << true << false;
    QTest::newRow("system, maximized") << true << true;
}

void FullScreenTest::leaving_restoresWhatWasBefore_whoeverEntered()
{
    QFETCH(const bool, isOfTheSystem);
    QFETCH(const bool, wasMaximized);
    Window shown;
    if (wasMaximized) {
        shown.window.showMaximized();
    }
    QTRY_COMPARE(shown.window.isMaximized(), wasMaximized);
    if (isOfTheSystem) {
        shown.change(Qt::WindowFullScreen);
    } else {
        shown.fullScreen.setOn(true);
    }
    QTRY_VERIFY(shown.fullScreen.isOn());
    shown.fullScreen.setOn(false);
    QTRY_VERIFY(!shown.window.isFullScreen());
    QCOMPARE(shown.window.isMaximized(), wasMaximized);
}

QTEST_MAIN(FullScreenTest)
#include "FullScreenTest.moc"
