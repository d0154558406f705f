#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "ui/mainwindow/KeyTips.h"
#include "ui/mainwindow/Shortcuts.h"
#include "ui/widgets/TimecodeField.h"
#include "ui/widgets/VolumePopup.h"

#include <QtAV/AVPlayer.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace testsupport;

namespace {

/// All menu entries with an action.
QList<QAction*> entriesOf(const QList<QAction*>& actions)
{
    QList<QAction*> entries;
    for (QAction* const action : actions) {
        if (action->menu() != nullptr) {
            entries += entriesOf(action->menu()->actions());
        } else if (!action->isSeparator()) {
            entries.append(action);
        }
    }
    return entries;
}

} // namespace

/// The effects of the keys, wherever the focus is.
class MainWindowKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_areGivenOnce();
    void page_tellsEachKey_ofEachAction();
    void f1_showsThePage();
    void toolTips_tellTheKeys();
    void mnemonics_areNotTwice_inAnyMenu();
    void navigation_isByKeys();
    void space_playsAndPauses_whateverHasTheKeyboard_data();
    void space_playsAndPauses_whateverHasTheKeyboard();
    void return_pressesTheControlReachedByTab();
    void tab_goesThroughTheTimeInBothDirections();
    void textFields_keepTheirLetters();
    void mute_isThatOfTheVolumeControl();
    void fullScreen_isLeftByEscape_andBringsAllBack();
};

void MainWindowKeysTest::keys_areGivenOnce()
{
    OpenWindow window;
    QHash<QString, QString> owners;
    const auto entries = entriesOf(window.find<QMenuBar>("menuBar").actions());
    QVERIFY(entries.size() > 20);
    for (const QAction* const action : entries) {
        const QList<QKeySequence> keys = action->shortcuts();
        for (const QKeySequence& key : keys) {
            const QString name = key.toString();
            QVERIFY2(!owners.contains(name), qPrintable(name + owners.value(name)));
            owners.insert(name, action->objectName());
        }
    }
    for (const char* key : {"Space",
                            "K",
                            "J",
                            "L",
                            ",",
                            ".",
                            "Left",
                            "Right",
                            "Shift+Left",
                            "Shift+Right",
                            "Ctrl+Left",
                            "Ctrl+Right",
                            "Ctrl+Up",
                            "Ctrl+Down",
                            "Alt+Left",
                            "Alt+Right",
                            "Home",
                            "End",
                            "I",
                            "O",
                            "S",
                            "Ctrl+A",
                            "Ctrl+Shift+S",
                            "M",
                            "F",
                            "1",
                            "F1",
                            "Ctrl+G"}) {
        QVERIFY2(owners.contains(QString::fromLatin1(key)), key);
    }
}

void MainWindowKeysTest::page_tellsEachKey_ofEachAction()
{
    OpenWindow window;
    const QMenuBar& bar = window.find<QMenuBar>("menuBar");
    window.find<QAction>("actionLoopStretch").setShortcut(QKeySequence(Qt::Key_F7));
    QHash<QString, QString> told;
    const QVector<Shortcuts::Section> sections = Shortcuts::sectionsOf(bar);
    for (const Shortcuts::Section& section : sections) {
        QVERIFY(!section.title.isEmpty() && !section.title.contains(QLatin1Char('&')));
        for (const Shortcuts::Section::Entry& entry : section.entries) {
            told.insert(entry.text, entry.keys);
        }
    }
    int count = 0;
    const auto entries = entriesOf(bar.actions());
    for (const QAction* const action : entries) {
        QString text = action->text();
        text.remove(QLatin1Char('&'));
        if (!action->shortcut().isEmpty()) {
            ++count;
            QCOMPARE(told.value(text), KeyTips::keysOf(*action));
        }
    }
    QCOMPARE(told.size(), count);
    QCOMPARE(told.value(QStringLiteral("Loop Stretch")), QStringLiteral("F7"));
    QCOMPARE(told.value(QStringLiteral("Play / Pause")), QStringLiteral("Space or K"));
    const QString page = Shortcuts::pageOf(sections);
    QVERIFY(page.contains(QStringLiteral("Space or K")));
    for (const char* way :
         {"Wheel over the picture", "Drag the zoomed picture", "Double click on the picture"}) {
        QVERIFY2(page.contains(QLatin1String(way)), way);
    }
    QVERIFY(Shortcuts::pageOf({{QStringLiteral("<b>"), {{QStringLiteral("<i>"), {}}}}})
                .contains(QStringLiteral("&lt;i&gt;")));
}

void MainWindowKeysTest::f1_showsThePage()
{
    OpenWindow window;
    QApplication::setActiveWindow(&window.window());
    QString text;
    QTimer::singleShot(0, &window.window(), [&text] {
        auto* const dialog = QApplication::activeModalWidget();
        QCOMPARE(dialog->objectName(), QStringLiteral("shortcutsDialog"));
        text = dialog->findChild<QTextBrowser*>()->toPlainText();
        dialog->close();
    });
    window.find<QAction>("actionShortcuts").trigger();
    QVERIFY(text.contains(QStringLiteral("Ctrl+Shift+S")));
}

void MainWindowKeysTest::toolTips_tellTheKeys()
{
    OpenWindow window;
    const KeyTips& tips = *window.window().findChild<KeyTips*>();
    QPushButton& play = window.find<QPushButton>("playButton");
    QCOMPARE(tips.textFor(play), QStringLiteral("Play/Pause (Space or K)"));
    QCOMPARE(tips.textFor(window.find<QPushButton>("stepForwardButton")),
             QStringLiteral("Step forward one frame (Right or .)"));
    window.find<QAction>("actionPlayPause").setShortcuts(QList<QKeySequence>());
    QCOMPARE(tips.textFor(play), QStringLiteral("Play/Pause"));
}

void MainWindowKeysTest::mnemonics_areNotTwice_inAnyMenu()
{
    OpenWindow window;
    const QMenuBar& bar = window.find<QMenuBar>("menuBar");
    const auto menus = bar.findChildren<QMenu*>();
    QVERIFY(menus.size() >= 8);
    QList<QList<QAction*>> lists{bar.actions()};
    for (QMenu* const menu : menus) {
        Q_EMIT menu->aboutToShow();
        lists.append(menu->actions());
    }
    for (const QList<QAction*>& actions : lists) {
        QSet<QChar> letters;
        for (const QAction* const action : actions) {
            if (action->isSeparator()) {
                continue;
            }
            QString text = action->text();
            text.remove(QStringLiteral("&&"));
            const int mark = text.indexOf(QLatin1Char('&'));
            QVERIFY2(mark >= 0, qPrintable(action->text()));
            const QChar letter = text.at(mark + 1).toLower();
            QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
            letters.insert(letter);
        }
    }
}

void MainWindowKeysTest::navigation_isByKeys()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(QStringLiteral("h264_gop250.mp4"))));
    QApplication::setActiveWindow(&window.window());
    const QtAV::AVPlayer& player = window.player();
    const auto goes = [&player](int key, Qt::KeyboardModifiers modifiers, qint64 ms) {
        press(key, modifiers);
        return waitForPosition(player, ms);
    };
    QVERIFY(goes(Qt::Key_Home, {}, 0));
    QVERIFY(goes(Qt::Key_Right, {}, 40));
    QVERIFY(goes(Qt::Key_Period, {}, 80));
    QVERIFY(goes(Qt::Key_Comma, {}, 40));
    QVERIFY(goes(Qt::Key_Left, {}, 0));
    QVERIFY(goes(Qt::Key_Right, Qt::ShiftModifier, 1000));
    QVERIFY(goes(Qt::Key_Right, Qt::ControlModifier, 11000));
    QVERIFY(goes(Qt::Key_Left, Qt::ShiftModifier, 10000));
    QVERIFY(goes(Qt::Key_Left, Qt::ControlModifier, 0));
    QVERIFY(goes(Qt::Key_Up, Qt::ControlModifier, 1000));
    QVERIFY(goes(Qt::Key_Down, Qt::ControlModifier, 0));
    QVERIFY(goes(Qt::Key_End, {}, 20760));
    QVERIFY(player.isPaused());
    press(Qt::Key_L);
    QCOMPARE(player.speed(), 1.25);
    press(Qt::Key_J);
    press(Qt::Key_J);
    QCOMPARE(player.speed(), 0.75);
    window.find<QAction>("actionNormalSpeed").trigger();
    QCOMPARE(player.speed(), 1.0);
}

void MainWindowKeysTest::space_playsAndPauses_whateverHasTheKeyboard_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const char* control : {"videoFrame", "stepForwardButton", "snapshotButton",
                                "imageProfileComboBox", "automaticFileNameGroupBox"}) {
        QTest::newRow(control) << QByteArray(control);
    }
}

void MainWindowKeysTest::space_playsAndPauses_whateverHasTheKeyboard()
{
    QFETCH(const QByteArray, control);
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(QStringLiteral("h264_gop250.mp4"))));
    QVERIFY(window.takeSnapshot());
    QApplication::setActiveWindow(&window.window());
    auto& widget = window.find<QWidget>(control.constData());
    widget.setFocus(Qt::TabFocusReason);
    QVERIFY(widget.hasFocus());
    const bool wasChecked = window.find<QGroupBox>("automaticFileNameGroupBox").isChecked();
    press(Qt::Key_Space);
    QVERIFY(window.player().isPlaying());
    press(Qt::Key_K);
    QVERIFY(window.player().isPaused());
    QCOMPARE(window.find<QGroupBox>("automaticFileNameGroupBox").isChecked(), wasChecked);
}

void MainWindowKeysTest::return_pressesTheControlReachedByTab()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QApplication::setActiveWindow(&window.window());
    auto& box = window.find<QGroupBox>("automaticFileNameGroupBox");
    box.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QVERIFY(box.isChecked());
    press(Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(!box.isChecked());
    const qint64 before = window.player().displayPosition();
    window.find<QWidget>("stepForwardButton").setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QVERIFY(waitForPosition(window.player(), before + 40));
    auto& choice = window.find<QComboBox>("imageProfileComboBox");
    choice.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    QVERIFY(choice.view()->isVisible());
    choice.hidePopup();
}

void MainWindowKeysTest::tab_goesThroughTheTimeInBothDirections()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QApplication::setActiveWindow(&window.window());
    const auto focus = [] { return QApplication::focusWidget()->objectName(); };
    window.find<QWidget>("saveButton").setFocus(Qt::TabFocusReason);
    for (int round = 0; round < 2; ++round) {
        press(Qt::Key_Tab);
        QCOMPARE(focus(), QStringLiteral("timecodeEdit"));
        press(Qt::Key_Tab);
        QCOMPARE(focus(), QStringLiteral("skipBackwardButton"));
        press(Qt::Key_Backtab);
        QCOMPARE(focus(), QStringLiteral("timecodeEdit"));
        press(Qt::Key_Backtab);
        QCOMPARE(focus(), QStringLiteral("saveButton"));
    }
}

void MainWindowKeysTest::textFields_keepTheirLetters()
{
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a.mp4"))));
    QVERIFY(window.takeSnapshot());
    QApplication::setActiveWindow(&window.window());
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    auto& folder = window.find<QLineEdit>("outputFolderLineEdit");
    const qint64 position = window.player().displayPosition();
    folder.setFocus();
    folder.clear();
    for (const int key : {Qt::Key_J, Qt::Key_Space, Qt::Key_K, Qt::Key_1, Qt::Key_F, Qt::Key_S}) {
        press(key);
    }
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    press(Qt::Key_M);
    QCOMPARE(folder.text(), QStringLiteral("jm k1fs"));
    press(Qt::Key_Return);
    QVERIFY(window.find<QGroupBox>("automaticFileNameGroupBox").isChecked());
    QVERIFY(window.player().isPaused());
    QCOMPARE(window.player().displayPosition(), position);
    QVERIFY(!window->isFullScreen());
}

void MainWindowKeysTest::mute_isThatOfTheVolumeControl()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QApplication::setActiveWindow(&window.window());
    auto& check = window.find<QCheckBox>("muteCheckBox");
    const QAction& action = window.find<QAction>("actionMute");
    QVERIFY(!action.isChecked());
    press(Qt::Key_M);
    QVERIFY(check.isChecked());
    QVERIFY(action.isChecked());
    QCOMPARE(window.player().audio()->volume(), 0.0);
    check.click();
    QVERIFY(!action.isChecked());
    QVERIFY(window.player().audio()->volume() > 0.0);
}

void MainWindowKeysTest::fullScreen_isLeftByEscape_andBringsAllBack()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QApplication::setActiveWindow(&window.window());
    const auto& bar = window.find<QWidget>("menuBar");
    const auto& pane = window.find<QWidget>("snapshotPane");
    press(Qt::Key_F);
    QVERIFY(window->isFullScreen());
    QVERIFY(window.find<QAction>("actionFullScreen").isChecked());
    QVERIFY(!bar.isVisible() && !pane.isVisible());
    // The keys work without the menu bar.
    press(Qt::Key_Home);
    QVERIFY(waitForPosition(window.player(), 0));
    press(Qt::Key_Right);
    QVERIFY(waitForPosition(window.player(), 40));
    // The field handles the first Escape.
    auto& field = window.find<TimecodeField>("timecodeField");
    field.type();
    press(Qt::Key_Escape);
    QVERIFY(!field.isTyping());
    QVERIFY(window->isFullScreen());
    press(Qt::Key_Escape);
    QVERIFY(!window->isFullScreen());
    QVERIFY(bar.isVisible() && pane.isVisible());
    QVERIFY(!window.find<QAction>("actionFullScreen").isChecked());
}

QTEST_MAIN(MainWindowKeysTest)
#include "MainWindowKeysTest.moc"
