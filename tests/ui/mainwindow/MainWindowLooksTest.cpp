#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/ui/mainwindow/OpenWindow.h"
#include "ui/mainwindow/OpenVideoButton.h"
#include "ui/mainwindow/SavedNotice.h"
#include "ui/theme/ActionButton.h"
#include "ui/theme/Theme.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>
#include <QTextLayout>

#include <algorithm>

using testsupport::clip;
using testsupport::OpenWindow;
using testsupport::patienceMs;
using testsupport::samplePath;

namespace {

/// Qt's font size on a desktop that sets none.
constexpr double usualPoints = 9.0;

/// The visible buttons of the recent files.
QList<QPushButton*> recentEntries(OpenWindow& window)
{
    QList<QPushButton*> entries;
    const auto all = window.window().findChildren<QPushButton*>(QStringLiteral("recentFileButton"));
    for (QPushButton* const entry : all) {
        if (entry->isVisible()) {
            entries.append(entry);
        }
    }
    return entries;
}

} // namespace

/// Guidance in the window.
class MainWindowLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theme_isChosenInTheMenu_atOnceAndForGood();
    void saveButton_standsOut_whileThereIsSomethingToSave();
    void saveButton_isQuietAgain_whenTheSnapshotWasCopied();
    void savedFile_isNamedBelowTheButton_untilTheNextSnapshot();
    void failedSaving_isSaidBelowTheButton();
    void emptyWindow_offersTheFilesThatAreThere();
    void emptyWindow_forgetsAClearedList();
    void recentFile_opens_withTheMouseAndWithReturn();
    void unplayableVideo_isNamed_andOthersAreOffered();
    void buttons_showTheirKeys();
    void speedButton_showsTheSpeed();
    void speed_hasItsSignBehindTheNumber_fromRightToLeft();
    void window_fitsASmallScreen_withLargeFonts();
};

void MainWindowLooksTest::theme_isChosenInTheMenu_atOnceAndForGood()
{
    OpenWindow window;
    QVERIFY(window.find<QAction>("actionThemeDark").isChecked());
    window.find<QAction>("actionThemeLight").trigger();
    QCOMPARE(Theme::instance().choice(), Theme::Choice::Light);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             theme::palette(theme::Scheme::Light).color(QPalette::Window));
    QCOMPARE(QSettings().value(QStringLiteral("theme")).toString(), QStringLiteral("light"));
    const MainWindow next;
    QVERIFY(next.findChild<QAction*>(QStringLiteral("actionThemeLight"))->isChecked());
    window.find<QAction>("actionThemeDark").trigger();
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             theme::palette(theme::Scheme::Dark).color(QPalette::Window));
}

void MainWindowLooksTest::saveButton_standsOut_whileThereIsSomethingToSave()
{
    OpenWindow window;
    const auto& save = window.find<QPushButton>("saveButton");
    const auto& take = window.find<QPushButton>("snapshotButton");
    QVERIFY(!Theme::isPrimary(save));
    QVERIFY(Theme::isPrimary(take));
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QVERIFY(Theme::isPrimary(save));
    QVERIFY(!Theme::isPrimary(take));
    QVERIFY(!window->saveSnapshot(window.dir().filePath(QStringLiteral("none/a.png"))));
    QVERIFY(Theme::isPrimary(save));
    QVERIFY(window->saveSnapshot(window.dir().filePath(QStringLiteral("a.png"))));
    QVERIFY(!Theme::isPrimary(save));
    QVERIFY(Theme::isPrimary(take));
    window.find<QAction>("actionTake_Snapshot").trigger();
    QTRY_VERIFY_WITH_TIMEOUT(Theme::isPrimary(save), patienceMs);
    window->closeVideo();
    QVERIFY(!Theme::isPrimary(save));
}

void MainWindowLooksTest::saveButton_isQuietAgain_whenTheSnapshotWasCopied()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    window.find<QAction>("actionCopy_Snapshot").trigger();
    QVERIFY(!Theme::isPrimary(window.find<QPushButton>("saveButton")));
}

void MainWindowLooksTest::savedFile_isNamedBelowTheButton_untilTheNextSnapshot()
{
    OpenWindow window;
    const auto& notice = window.find<SavedNotice>("savedNotice");
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QCOMPARE(notice.text(), QString());
    QVERIFY(!notice.folderButton().isVisible());
    QVERIFY(window->saveSnapshot(window.dir().filePath(QStringLiteral("a.png"))));
    QCOMPARE(notice.text(), QStringLiteral("Saved a.png"));
    QVERIFY(notice.folderButton().isVisible());
    window.find<QAction>("actionTake_Snapshot").trigger();
    QTRY_COMPARE_WITH_TIMEOUT(notice.text(), QString(), patienceMs);
    QVERIFY(notice.folderButton().isVisible());
}

void MainWindowLooksTest::failedSaving_isSaidBelowTheButton()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QVERIFY(!window->saveSnapshot(window.dir().filePath(QStringLiteral("none/a.png"))));
    QCOMPARE(window.find<SavedNotice>("savedNotice").text(),
             QStringLiteral("Could not save a.png"));
}

void MainWindowLooksTest::emptyWindow_offersTheFilesThatAreThere()
{
    OpenWindow window;
    QVERIFY(recentEntries(window).isEmpty());
    window->openVideo(window.copyOf(clip, QStringLiteral("first & best.mp4")));
    const QString gone = window.copyOf(clip, QStringLiteral("gone.mp4"));
    window->openVideo(gone);
    window->openVideo(window.copyOf(clip, QStringLiteral("last.mp4")));
    QVERIFY(recentEntries(window).isEmpty());
    QVERIFY(QFile::remove(gone));
    window->closeVideo();
    const QList<QPushButton*> entries = recentEntries(window);
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries[0]->text(), QStringLiteral("last.mp4"));
    QCOMPARE(entries[1]->text(), QStringLiteral("first && best.mp4"));
    QCOMPARE(entries[1]->accessibleName(), QStringLiteral("first & best.mp4"));
    QVERIFY(entries[0]->toolTip().endsWith(QStringLiteral("last.mp4")));
    QVERIFY(entries[0]->focusPolicy() & Qt::TabFocus);
}

void MainWindowLooksTest::emptyWindow_forgetsAClearedList()
{
    OpenWindow window;
    window->openVideo(window.copyOf(clip, QStringLiteral("a.mp4")));
    window->closeVideo();
    QCOMPARE(recentEntries(window).size(), 1);
    QSettings().remove(QStringLiteral("recentFiles"));
    Q_EMIT window.find<QMenu>("menuFile").aboutToHide();
    QTRY_VERIFY(recentEntries(window).isEmpty());
}

void MainWindowLooksTest::recentFile_opens_withTheMouseAndWithReturn()
{
    OpenWindow window;
    const QString file = window.copyOf(clip, QStringLiteral("a.mp4"));
    window->openVideo(file);
    window->closeVideo();
    QTest::mouseClick(recentEntries(window).value(0), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), file, patienceMs);
    window->closeVideo();
    QApplication::setActiveWindow(&window.window());
    QPushButton* const entry = recentEntries(window).value(0);
    entry->setFocus(Qt::TabFocusReason);
    QTest::keyClick(entry, Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), file, patienceMs);
}

void MainWindowLooksTest::unplayableVideo_isNamed_andOthersAreOffered()
{
    OpenWindow window;
    window->openVideo(samplePath(QStringLiteral("random_bytes.mp4")));
    auto& button = window.find<OpenVideoButton>("openVideoLabel");
    const auto says = [&button](const QString& text) {
        const auto labels = button.findChildren<QLabel*>();
        return std::any_of(labels.cbegin(), labels.cend(), [&text](const QLabel* label) {
            return label->isVisible() && label->text().contains(text);
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(says(QStringLiteral("cannot be played")), patienceMs);
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(!says(QStringLiteral("open video")));
    window->closeVideo();
    QVERIFY(says(QStringLiteral("Click to open video")));
}

void MainWindowLooksTest::buttons_showTheirKeys()
{
    OpenWindow window;
    QCOMPARE(window.find<ActionButton>("snapshotButton").keys(), QStringLiteral("Ctrl+A"));
    QCOMPARE(window.find<ActionButton>("saveButton").keys(), QStringLiteral("Ctrl+S"));
}

void MainWindowLooksTest::speedButton_showsTheSpeed()
{
    OpenWindow window;
    const auto& button = window.find<QPushButton>("speedButton");
    QVERIFY(window.openPaused(samplePath(clip)));
    QCOMPARE(button.text(), QStringLiteral("1\u00d7"));
    window.player().setSpeed(1.5);
    QTRY_COMPARE(button.text(), QStringLiteral("1.5\u00d7"));
}

void MainWindowLooksTest::speed_hasItsSignBehindTheNumber_fromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    OpenWindow window;
    const QString text = window.find<QPushButton>("speedButton").text();
    QTextLayout layout(text);
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const auto placeOf = [&](const QString& character) {
        return line.cursorToX(text.indexOf(character));
    };
    QVERIFY(placeOf(QStringLiteral("1")) < placeOf(QStringLiteral("\u00d7")));
}

void MainWindowLooksTest::window_fitsASmallScreen_withLargeFonts()
{
    Theme::instance().apply(Theme::Choice::Dark);
    QFile sheet(QStringLiteral(":/Styles.qss"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(usualPoints * 1.5);
    QApplication::setFont(large);
    qApp->setStyleSheet(QString::fromLatin1(sheet.readAll()));
    QSize least;
    {
        OpenWindow window;
        QVERIFY(window.openPaused(samplePath(clip)));
        QVERIFY(window.takeSnapshot());
        window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
        QCoreApplication::processEvents();
        least = window->minimumSizeHint();
    }
    QApplication::setFont(before);
    qApp->setStyleSheet(QString());
    QVERIFY2(least.width() <= 800 && least.height() <= 600,
             qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
}

QTEST_MAIN(MainWindowLooksTest)
#include "MainWindowLooksTest.moc"
