#include "series/FrameQuality.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

/// Pictures and frames made for one property each.
class FrameQualityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharpness_fallsWithMotion_inEitherDirection_data();
    void sharpness_fallsWithMotion_inEitherDirection();
    void sharpness_staysAbout_whenContrastChanges();
    void noiseAlone_isNoDetail();
    void blackAndFlatPictures_areEmpty();
    void nightScene_isNotEmpty();
    void change_isAtTheCut();

    void best_areTheSharpest_oneInEachPart();
    void partWithoutGoodFrames_isMadeUpFor();
    void emptyFrames_areNotTaken();
    void framesAtCuts_areNotTaken();
    void blurredFrames_areNotTaken_nextToSharpOnes();
    void sceneThatIsSoftThroughout_isTaken();
    void framesOutside_areComparedWith_andNotTaken();
    void nothingGood_givesNothing();
    void fewFrames_giveNoneTwice();
};

namespace {

constexpr QSize size{320, 180};

/// Squares of random greys.
QImage textured(int from = 40, int to = 220)
{
    QImage image(size, QImage::Format_Grayscale8);
    QRandomGenerator random(7);
    constexpr int side = 9;
    QVector<uchar> greys;
    for (int i = 0; i < (size.width() / side + 1) * (size.height() / side + 1); ++i) {
        greys.append(uchar(random.bounded(from, to)));
    }
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.scanLine(y)[x] = greys.at(y / side * (size.width() / side + 1) + x / side);
        }
    }
    return image;
}

/// Simulates a camera that moves by this many pixels while its shutter is open.
QImage moved(const QImage& image, int dx, int dy)
{
    QImage blurred = image.copy();
    const int steps = std::max(dx, dy);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            int sum = 0;
            for (int i = 0; i <= steps; ++i) {
                const int fromX = std::min(image.width() - 1, x + i * dx / steps);
                const int fromY = std::min(image.height() - 1, y + i * dy / steps);
                sum += image.constScanLine(fromY)[fromX];
            }
            blurred.scanLine(y)[x] = uchar(sum / (steps + 1));
        }
    }
    return blurred;
}

QImage grey(int value, int noise = 0)
{
    QImage image(size, QImage::Format_Grayscale8);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.scanLine(y)[x] = uchar(value + random.bounded(noise + 1));
        }
    }
    return image;
}

FrameQuality qualityOf(const QImage& image)
{
    return FrameJudge().judge(0, image);
}

/// Frames 40 ms apart with this sharpness.
QVector<FrameQuality> framesOf(int count, double sharpness = 0.1)
{
    QVector<FrameQuality> frames;
    for (int i = 0; i < count; ++i) {
        FrameQuality frame;
        frame.ms = 40 * i;
        frame.sharpness = sharpness;
        frames.append(frame);
    }
    return frames;
}

} // namespace

void FrameQualityTest::sharpness_fallsWithMotion_inEitherDirection_data()
{
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("dy");
    QTest::newRow("across") << 6 << 0;
    QTest::newRow("down") << 0 << 6;
    QTest::newRow("aslant") << 5 << 5;
}

void FrameQualityTest::sharpness_fallsWithMotion_inEitherDirection()
{
    QFETCH(int, dx);
    QFETCH(int, dy);
    const QImage sharp = textured();
    const double before = qualityOf(sharp).sharpness;
    const double after = qualityOf(moved(sharp, dx, dy)).sharpness;
    QVERIFY2(after < 0.6 * before, qPrintable(QStringLiteral("%1 %2").arg(before).arg(after)));
    QVERIFY(after > 0.0);
    // More motion is worse.
    QVERIFY(qualityOf(moved(sharp, 2 * dx, 2 * dy)).sharpness < after);
}

void FrameQualityTest::sharpness_staysAbout_whenContrastChanges()
{
    const double strong = qualityOf(textured(20, 240)).sharpness;
    const double weak = qualityOf(textured(90, 170)).sharpness;
    QVERIFY(weak > 0.85 * strong && weak < 1.15 * strong);
}

void FrameQualityTest::noiseAlone_isNoDetail()
{
    QVERIFY(qualityOf(grey(100, 4)).sharpness < 0.5 * qualityOf(textured()).sharpness);
}

void FrameQualityTest::blackAndFlatPictures_areEmpty()
{
    QVERIFY(qualityOf(grey(0)).isEmpty);
    QVERIFY(qualityOf(grey(16, 10)).isEmpty);
    QVERIFY(qualityOf(grey(255)).isEmpty);
    QVERIFY(qualityOf(grey(128, 3)).isEmpty);
    QVERIFY(qualityOf(QImage()).isEmpty);
    QVERIFY(!qualityOf(textured()).isEmpty);
}

void FrameQualityTest::nightScene_isNotEmpty()
{
    QImage night = grey(6, 10);
    for (int y = 0; y < night.height(); ++y) {
        std::fill_n(night.scanLine(y) + 100, 12, uchar(150));
    }
    QVERIFY(!qualityOf(night).isEmpty);
}

void FrameQualityTest::change_isAtTheCut()
{
    FrameJudge judge;
    QCOMPARE(judge.judge(0, textured()).change, 0.0);
    QCOMPARE(judge.judge(40, textured()).change, 0.0);
    QVERIFY(judge.judge(80, textured().mirrored(true, true)).change >= 0.3);
    QVERIFY(judge.judge(120, textured().mirrored(true, true)).change < 0.3);
}

void FrameQualityTest::best_areTheSharpest_oneInEachPart()
{
    QVector<FrameQuality> frames = framesOf(100);
    frames[10].sharpness = 0.12;
    frames[12].sharpness = 0.11;
    frames[40].sharpness = 0.13;
    frames[99].sharpness = 0.12;
    QCOMPARE(bestOf(frames, {0, 4000}, 3), (QVector<qint64>{400, 1600, 3960}));
}

void FrameQualityTest::partWithoutGoodFrames_isMadeUpFor()
{
    QVector<FrameQuality> frames = framesOf(100);
    for (int i = 25; i < 50; ++i) {
        frames[i].isEmpty = true;
    }
    frames[10].sharpness = 0.12;
    frames[60].sharpness = 0.12;
    frames[90].sharpness = 0.12;
    frames[75].sharpness = 0.11;
    // The fourth is half a part away from the others.
    QCOMPARE(bestOf(frames, {0, 4000}, 4), (QVector<qint64>{400, 2400, 3000, 3600}));
}

void FrameQualityTest::emptyFrames_areNotTaken()
{
    QVector<FrameQuality> frames = framesOf(10);
    frames[5].sharpness = 0.2;
    frames[5].isEmpty = true;
    frames[3].sharpness = 0.18;
    QCOMPARE(bestOf(frames, {0, 400}, 1), QVector<qint64>{120});
}

void FrameQualityTest::framesAtCuts_areNotTaken()
{
    QVector<FrameQuality> frames = framesOf(20);
    frames[10].change = 0.6;
    for (int i = 7; i <= 12; ++i) {
        frames[i].sharpness = 0.2;
    }
    frames[3].sharpness = 0.19;
    // 9 and 10 are next to the cut, 8, 11 and 12 within 100 ms of its first frame.
    QCOMPARE(bestOf(frames, {0, 800}, 1), QVector<qint64>{280});
}

void FrameQualityTest::blurredFrames_areNotTaken_nextToSharpOnes()
{
    QVector<FrameQuality> frames = framesOf(20, 0.03);
    frames[4].sharpness = 0.1;
    frames[14].sharpness = 0.1;
    QCOMPARE(bestOf(frames, {0, 800}, 5), (QVector<qint64>{160, 560}));
}

void FrameQualityTest::sceneThatIsSoftThroughout_isTaken()
{
    QVector<FrameQuality> frames = framesOf(60, 0.1);
    for (int i = 30; i < 60; ++i) {
        frames[i].sharpness = 0.03;
    }
    frames[30].change = 0.5;
    frames[50].sharpness = 0.031;
    frames[5].sharpness = 0.11;
    QCOMPARE(bestOf(frames, {0, 2400}, 2), (QVector<qint64>{200, 2000}));
}

void FrameQualityTest::framesOutside_areComparedWith_andNotTaken()
{
    QVector<FrameQuality> frames = framesOf(20, 0.03);
    frames[2].sharpness = 0.1;
    QVERIFY(bestOf(frames, {160, 320}, 2).isEmpty());
    frames[2].sharpness = 0.03;
    QCOMPARE(bestOf(frames, {160, 320}, 1).size(), 1);
}

void FrameQualityTest::nothingGood_givesNothing()
{
    QVector<FrameQuality> frames = framesOf(5);
    for (FrameQuality& frame : frames) {
        frame.isEmpty = true;
    }
    QVERIFY(bestOf(frames, {0, 1000}, 3).isEmpty());
    QVERIFY(bestOf({}, {0, 1000}, 3).isEmpty());
}

void FrameQualityTest::fewFrames_giveNoneTwice()
{
    QCOMPARE(bestOf(framesOf(2), {0, 80}, 10), (QVector<qint64>{0, 40}));
}

QTEST_APPLESS_MAIN(FrameQualityTest)
#include "FrameQualityTest.moc"
