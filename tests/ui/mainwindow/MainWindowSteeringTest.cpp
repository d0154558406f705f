#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/mainwindow/TimeSlider.h"
#include "ui/widgets/TimecodeField.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

using namespace testsupport;

namespace {

const QString film = QStringLiteral("h264_gop250.mp4"); // 520 frames, 25 a second
const QString uneven = QStringLiteral("variable_rate.mkv");

TimeSlider& sliderOf(OpenWindow& window)
{
    return window.find<TimeSlider>("videoSlider");
}

QString factsOf(OpenWindow& window)
{
    return window.find<QLabel>("videoFactsLabel").text();
}

/// Replaces the time by typing, like a user.
void type(OpenWindow& window, const QString& text)
{
    window.find<QAction>("actionGoToTime").trigger();
    auto& edit = window.find<QLineEdit>("timecodeEdit");
    edit.setText(text);
    QTest::keyClick(&edit, Qt::Key_Return);
}

} // namespace

/// Navigation to a frame besides playing and stepping.
class MainWindowSteeringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void line_tellsTheFrameOnScreen_andTheVideo();
    void typedPosition_isGoneTo_data();
    void typedPosition_isGoneTo();
    void typedFrame_isThatFrame_ofAVideoOfVariableRate();
    void wrongText_isMarkedAndTold_andNothingMoves_data();
    void wrongText_isMarkedAndTold_andNothingMoves();
    void preview_showsTheMomentUnderThePointer();
    void wheelAndShift_goFrameByFrame();
    void ticks_areThoseOfTheSnapshots_ofThisVideo();
    void stretch_isMarked_loops_andIsCleared();
    void stretchToTheEnd_loops();
    void otherVideo_startsWithoutMarks_atNormalSpeed();
    void snapshot_isTakenAndSavedAtOnce();
    void batchMode_takesTheMarkedStretch();
};

void MainWindowSteeringTest::line_tellsTheFrameOnScreen_andTheVideo()
{
    OpenWindow window;
    QCOMPARE(factsOf(window), QString());
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(400);
    QTRY_COMPARE_WITH_TIMEOUT(factsOf(window), QStringLiteral("f10 · 25 fps · 320 × 240 · H.264"),
                              patienceMs);
    window.find<QAction>("actionFaster").trigger();
    QVERIFY(factsOf(window).endsWith(QStringLiteral("speed 1.25×")));
    window->closeVideo();
    QCOMPARE(factsOf(window), QString());
    QVERIFY(!window.find<TimecodeField>("timecodeField").isEnabled());
}

void MainWindowSteeringTest::typedPosition_isGoneTo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("ms");
    QTest::newRow("time") << "0:12.5" << qint64(12520);
    QTest::newRow("seconds") << "3" << qint64(3000);
    QTest::newRow("on") << "+10s" << qint64(14000);
    QTest::newRow("back") << "-2s" << qint64(2000);
    QTest::newRow("on behind the end") << "+1h" << qint64(20760);
    QTest::newRow("frame") << "f100" << qint64(4000);
    QTest::newRow("last frame") << "f519" << qint64(20760);
    QTest::newRow("part") << "75%" << qint64(15600);
    QTest::newRow("last") << "last" << qint64(20760);
}

void MainWindowSteeringTest::typedPosition_isGoneTo()
{
    QFETCH(const QString, text);
    QFETCH(const qint64, ms);
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    window.player().setPosition(4000);
    QVERIFY(waitForPosition(window.player(), 4000));
    type(window, text);
    QVERIFY(waitForPosition(window.player(), ms));
    QVERIFY(window.player().isPaused());
    QTRY_VERIFY_WITH_TIMEOUT(!window.find<TimecodeField>("timecodeField").isTyping(), patienceMs);
}

void MainWindowSteeringTest::typedFrame_isThatFrame_ofAVideoOfVariableRate()
{
    const Sample& sample = sampleNamed(uneven);
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(uneven)));
    const int n = sample.frames * 2 / 3;
    type(window, QStringLiteral("f%1").arg(n));
    QVERIFY(waitForPosition(window.player(), frameTimeMs(sample, n)));
    QCOMPARE(frameNumber(window.player().displayedFrame().toImage()),
             std::make_optional(sample.firstNumber + n));
    QTRY_VERIFY_WITH_TIMEOUT(factsOf(window).startsWith(QStringLiteral("f%1 ").arg(n)), patienceMs);
}

void MainWindowSteeringTest::wrongText_isMarkedAndTold_andNothingMoves_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"abc", "1:75", "", "99:00:00", "101%", "f520"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void MainWindowSteeringTest::wrongText_isMarkedAndTold_andNothingMoves()
{
    QFETCH(const QString, text);
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    window.player().setPosition(4000);
    QVERIFY(waitForPosition(window.player(), 4000));
    type(window, text);
    const auto& field = window.find<TimecodeField>("timecodeField");
    QTRY_VERIFY_WITH_TIMEOUT(field.isRefused(), patienceMs);
    QVERIFY(field.isTyping());
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("“%1”").arg(text)));
    QCOMPARE(window.player().position(), 4000);
    QTest::keyClick(&window.find<QLineEdit>("timecodeEdit"), Qt::Key_Escape);
    QVERIFY(!field.isTyping());
    QCOMPARE(field.time(), QStringLiteral("00:00:04.000"));
}

void MainWindowSteeringTest::preview_showsTheMomentUnderThePointer()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    TimeSlider& slider = sliderOf(window);
    QTRY_VERIFY_WITH_TIMEOUT(slider.maximum() > 600, patienceMs);
    const qint64 position = window.player().position();
    const int x = slider.width() / 3;
    QTest::mouseMove(&slider, {x, slider.height() / 2});
    auto& preview = window.find<QWidget>("sliderPreview");
    QVERIFY(preview.isVisible());
    const qint64 ms = slider.timeAt(x);
    QVERIFY(window.find<QLabel>("sliderPreviewText")
                .text()
                .contains(QTime(0, 0).addMSecs(int(ms)).toString(QStringLiteral("hh:mm:ss.zzz"))));
    const auto& picture = window.find<QLabel>("sliderPreviewPicture");
    const auto shown = [&picture]() -> std::optional<int> {
        const QPixmap pixmap = picture.pixmap(Qt::ReturnByValue);
        return pixmap.isNull() ? std::nullopt : frameNumber(pixmap.toImage());
    };
    QTRY_COMPARE_WITH_TIMEOUT(shown(), std::make_optional(int((ms + 39) / 40)), patienceMs);
    QCOMPARE(window.player().position(), position);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&slider, &leave);
    QVERIFY(!preview.isVisible());
}

void MainWindowSteeringTest::wheelAndShift_goFrameByFrame()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    window.player().setPosition(4000);
    QVERIFY(waitForPosition(window.player(), 4000));
    TimeSlider& slider = sliderOf(window);
    Q_EMIT slider.stepped(3);
    QVERIFY(waitForPosition(window.player(), 4120));
    QTest::mousePress(&slider, Qt::LeftButton, Qt::ShiftModifier, {100, 10});
    QMouseEvent drag(QEvent::MouseMove, QPointF(70, 10), slider.mapToGlobal(QPoint(70, 10)),
                     Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(&slider, &drag);
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::ShiftModifier, {70, 10});
    QVERIFY(waitForPosition(window.player(), 3920));
}

void MainWindowSteeringTest::ticks_areThoseOfTheSnapshots_ofThisVideo()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    const TimeSlider& slider = sliderOf(window);
    for (const qint64 ms : {4000, 8000, 4000}) {
        window.player().setPosition(ms);
        QVERIFY(waitForPosition(window.player(), ms));
        window->snapshotButtonPressed();
        QTRY_VERIFY_WITH_TIMEOUT(slider.snapshotTicks().contains(ms), patienceMs);
    }
    QCOMPARE(slider.snapshotTicks(), (QVector<qint64>{4000, 8000}));
    window->closeVideo();
    QVERIFY(slider.snapshotTicks().isEmpty());
}

void MainWindowSteeringTest::stretch_isMarked_loops_andIsCleared()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    const TimeSlider& slider = sliderOf(window);
    QtAV::AVPlayer& player = window.player();
    player.setPosition(4000);
    QVERIFY(waitForPosition(player, 4000));
    window.find<QAction>("actionMarkStart").trigger();
    player.setPosition(4400);
    QVERIFY(waitForPosition(player, 4400));
    window.find<QAction>("actionMarkEnd").trigger();
    QCOMPARE(slider.stretch().fromMs, std::make_optional<qint64>(4000));
    QCOMPARE(slider.stretch().toMs, std::make_optional<qint64>(4400));
    player.setPosition(4200);
    QVERIFY(waitForPosition(player, 4200));
    window.find<QAction>("actionLoopStretch").trigger();
    QList<qint64> shown;
    connect(&player, &QtAV::AVPlayer::positionChanged, this, [&](qint64 ms) { shown += ms; });
    player.play();
    const auto returns = [&shown] { return shown.count(4000); };
    QTRY_VERIFY_WITH_TIMEOUT(returns() >= 2, patienceMs);
    QVERIFY(*std::min_element(shown.cbegin(), shown.cend()) >= 4000);
    QVERIFY(player.isPlaying());
    window.find<QAction>("actionClearStretch").trigger();
    QVERIFY(slider.stretch().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(player.displayPosition() > 5000, patienceMs);
}

void MainWindowSteeringTest::stretchToTheEnd_loops()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QtAV::AVPlayer& player = window.player();
    player.setPosition(3600);
    QVERIFY(waitForPosition(player, 3600));
    window.find<QAction>("actionMarkStart").trigger();
    window.find<QAction>("actionLoopStretch").trigger();
    int returns = 0;
    connect(&player, &QtAV::AVPlayer::positionChanged, this,
            [&](qint64 ms) { returns += ms == 3600; });
    player.play();
    QTRY_VERIFY_WITH_TIMEOUT(returns >= 2, patienceMs);
}

void MainWindowSteeringTest::otherVideo_startsWithoutMarks_atNormalSpeed()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(film)));
    window.find<QAction>("actionMarkStart").trigger();
    window.find<QAction>("actionFaster").trigger();
    QVERIFY(!sliderOf(window).stretch().isEmpty());
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(sliderOf(window).stretch().isEmpty());
    QCOMPARE(window.player().speed(), 1.0);
}

void MainWindowSteeringTest::snapshot_isTakenAndSavedAtOnce()
{
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(film, QStringLiteral("a.mp4"))));
    window.player().setPosition(4000);
    QVERIFY(waitForPosition(window.player(), 4000));
    const QString first = window.dir().filePath(QStringLiteral("a-00001.jpeg"));
    // An unsaved capture comes first, and is not saved.
    window->snapshotButtonPressed();
    window.find<QAction>("actionTakeAndSave").trigger();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(first), patienceMs);
    QCOMPARE(frameNumber(QImage(first)), std::make_optional(100));
    window.find<QAction>("actionTakeAndSave").trigger();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(window.dir().filePath(QStringLiteral("a-00002.jpeg"))),
                             patienceMs);
    QVERIFY(!QFile::exists(window.dir().filePath(QStringLiteral("a-00003.jpeg"))));
}

void MainWindowSteeringTest::batchMode_takesTheMarkedStretch()
{
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(film, QStringLiteral("a.mp4"))));
    for (const auto& [ms, action] :
         {std::pair<qint64, const char*>{4000, "actionMarkStart"}, {12000, "actionMarkEnd"}}) {
        window.player().setPosition(ms);
        QVERIFY(waitForPosition(window.player(), ms));
        window.find<QAction>(action).trigger();
    }
    QString front;
    QString back;
    QTimer::singleShot(0, &window.window(), [&] {
        auto* const dialog = qobject_cast<BatchModeDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        const auto text = [dialog](const char* name) {
            return dialog->findChild<QLineEdit*>(QLatin1String(name))->text();
        };
        QTRY_VERIFY_WITH_TIMEOUT(!dialog->isLoading(), patienceMs);
        front = text("skipFrontTextEdit");
        back = text("skipBackTextEdit");
        dialog->close();
    });
    window.find<QAction>("actionBatch_Mode").trigger();
    QCOMPARE(front, QStringLiteral("4"));
    QCOMPARE(back, QStringLiteral("8.8"));
}

QTEST_MAIN(MainWindowSteeringTest)
#include "MainWindowSteeringTest.moc"
