#include "tests/qtav/Playing.h"

#include <QtAV/FrameReader.h>
#include <QtAV/Times.h>

#include <QImage>
#include <QTest>

using namespace playing;
using QtAV::AVPlayer;
using QtAV::Deinterlacing;
using testsupport::samplePath;

namespace {

/// Two moments in each picture, 25 pictures a second.
const QString fields = QStringLiteral("fields_mpeg2_tff.ts");

/// The frame at a position, from a separate reader.
QImage pictureAt(qint64 ms, Deinterlacing deinterlacing)
{
    const auto never = [] { return false; };
    QtAV::FrameReader reader;
    reader.setDeinterlacing(deinterlacing);
    QString error;
    if (!reader.open(samplePath(fields), never, error)) {
        return {};
    }
    QtAV::FrameReader::Search search;
    search.ms = ms;
    search.isReached = [ms](const QtAV::VideoFrame& frame) {
        return QtAV::toMilliseconds(frame.timestamp()) >= ms;
    };
    return reader.find(search, never).frame.toImage();
}

/// Steps by fields and returns the player's new time; -1 if it does not move.
qint64 stepField(Stage& stage, void (AVPlayer::*step)())
{
    QSignalSpy positions(&stage.player, &AVPlayer::positionChanged);
    (stage.player.*step)();
    const bool hasMoved = positions.count() > 0 || positions.wait(patienceMs);
    return hasMoved ? stage.player.displayPosition() : -1;
}

} // namespace

/// Interlaced video in a player.
class AVPlayerFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setDeinterlacing_showsTheFrameAnew_whenPaused();
    void setDeinterlacing_holds_forWhatComesNext();
    void capture_isAsOnScreen_whateverIsChosen();
    void stepField_goesThroughBothMoments_whenFieldsAreApart();
    void stepField_goesByFrames_whenPicturesAreWhole();
    void stepForward_goesToTheNextFrame_fromTheSecondField();
};

void AVPlayerFieldsTest::setDeinterlacing_showsTheFrameAnew_whenPaused()
{
    Stage stage;
    QVERIFY(stage.open(fields));
    QVERIFY(stage.seek(400));
    QVERIFY(stage.screen.frame.toImage() == pictureAt(400, Deinterlacing::Automatic));
    for (const Deinterlacing next : {Deinterlacing::Off, Deinterlacing::On}) {
        stage.player.setDeinterlacing(next);
        QTRY_VERIFY(stage.screen.frame.toImage() == pictureAt(400, next));
        QCOMPARE(stage.player.displayPosition(), qint64(400));
    }
}

void AVPlayerFieldsTest::setDeinterlacing_holds_forWhatComesNext()
{
    Stage stage;
    stage.player.setDeinterlacing(Deinterlacing::Off);
    QVERIFY(stage.open(fields));
    QVERIFY(stage.seek(400));
    QVERIFY(stage.screen.frame.toImage() == pictureAt(400, Deinterlacing::Off));
    stage.player.setDeinterlacing(Deinterlacing::Automatic);
    QVERIFY(stage.stepForward());
    QVERIFY(stage.screen.frame.toImage() == pictureAt(440, Deinterlacing::Automatic));
    QVERIFY(stage.stepBackward());
    QVERIFY(stage.screen.frame.toImage() == pictureAt(400, Deinterlacing::Automatic));
}

void AVPlayerFieldsTest::capture_isAsOnScreen_whateverIsChosen()
{
    Stage stage;
    QVERIFY(stage.open(fields));
    QVERIFY(stage.seek(400));
    for (const bool isSecond : {false, true}) {
        if (isSecond) {
            QCOMPARE(stepField(stage, &AVPlayer::stepFieldForward), qint64(420));
        }
        QSignalSpy captured(stage.player.videoCapture(), &QtAV::VideoCapture::imageCaptured);
        stage.player.videoCapture()->capture();
        QVERIFY(captured.count() > 0 || captured.wait(patienceMs));
        const QImage image = captured.at(0).at(0).value<QImage>();
        QVERIFY(image == stage.screen.frame.toImage(image.format()));
    }
}

void AVPlayerFieldsTest::stepField_goesThroughBothMoments_whenFieldsAreApart()
{
    Stage stage;
    QVERIFY(stage.open(fields));
    QVERIFY(stage.seek(400));
    for (const qint64 ms : {420, 440, 460, 480}) {
        QCOMPARE(stepField(stage, &AVPlayer::stepFieldForward), ms);
        QCOMPARE(stage.screen.frame.isSecondField(), ms % 40 != 0);
    }
    for (const qint64 ms : {460, 440, 420, 400, 380}) {
        QCOMPARE(stepField(stage, &AVPlayer::stepFieldBackward), ms);
        QCOMPARE(stage.screen.frame.isSecondField(), ms % 40 != 0);
    }
}

void AVPlayerFieldsTest::stepField_goesByFrames_whenPicturesAreWhole()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("segmented_mpeg2.ts")));
    QVERIFY(stage.seek(400));
    QCOMPARE(stepField(stage, &AVPlayer::stepFieldForward), qint64(440));
    QCOMPARE(stepField(stage, &AVPlayer::stepFieldBackward), qint64(400));
    QCOMPARE(stepField(stage, &AVPlayer::stepFieldBackward), qint64(360));
}

void AVPlayerFieldsTest::stepForward_goesToTheNextFrame_fromTheSecondField()
{
    Stage stage;
    QVERIFY(stage.open(fields));
    QVERIFY(stage.seek(400));
    QCOMPARE(stepField(stage, &AVPlayer::stepFieldForward), qint64(420));
    QVERIFY(stage.stepForward());
    QCOMPARE(stage.player.displayPosition(), qint64(440));
    QVERIFY(!stage.screen.frame.isSecondField());
}

QTEST_GUILESS_MAIN(AVPlayerFieldsTest)
#include "AVPlayerFieldsTest.moc"
