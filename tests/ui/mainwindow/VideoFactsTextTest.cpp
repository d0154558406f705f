#include "ui/mainwindow/VideoFactsText.h"

#include "ui/mainwindow/PlaybackSpeeds.h"

#include <QTest>

namespace {

QtAV::MediaFacts film()
{
    QtAV::MediaFacts facts;
    facts.rateNumerator = 24000;
    facts.rateDenominator = 1001;
    facts.codec = QStringLiteral("h264");
    return facts;
}

} // namespace

class VideoFactsTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void line_tellsAllThatIsKnown();
    void number_isEstimated_fromTimesThatAreCutOff();
    void speeds_goFromTheSlowestToTheFastest_andBack();
};

void VideoFactsTextTest::line_tellsAllThatIsKnown()
{
    const VideoFactsText::FrameNumber exact{1234, true};
    QCOMPARE(VideoFactsText::line(exact, film(), {1920, 1080}, 1.0),
             QStringLiteral("f1234 · 23.976 fps · 1920 × 1080 · H.264"));
    QtAV::MediaFacts other = film();
    other.rateNumerator = 25;
    other.rateDenominator = 1;
    other.codec = QStringLiteral("vp9");
    QCOMPARE(VideoFactsText::line(VideoFactsText::FrameNumber{7, false}, other, {640, 360}, 1.5),
             QStringLiteral("≈f7 · 25 fps · 640 × 360 · VP9 · speed 1.5×"));
    QCOMPARE(VideoFactsText::line({}, {}, {}, 1.0), QString());
}

void VideoFactsTextTest::number_isEstimated_fromTimesThatAreCutOff()
{
    for (int n = 0; n < 100000; n += 101) {
        const auto ms = qint64(n) * 1001 / 24;
        const auto frame = VideoFactsText::estimated(ms, film());
        QVERIFY(frame && !frame->isExact);
        QCOMPARE(frame->value, qint64(n));
    }
    QVERIFY(!VideoFactsText::estimated(40, {}));
}

void VideoFactsTextTest::speeds_goFromTheSlowestToTheFastest_andBack()
{
    qreal speed = 0.1;
    QCOMPARE(PlaybackSpeeds::slower(speed), 0.1);
    int steps = 0;
    for (; PlaybackSpeeds::faster(speed) > speed; ++steps) {
        const qreal next = PlaybackSpeeds::faster(speed);
        QCOMPARE(PlaybackSpeeds::slower(next), speed);
        speed = next;
    }
    QCOMPARE(speed, 8.0);
    QVERIFY(steps >= 8);
    QCOMPARE(PlaybackSpeeds::faster(1.1), 1.25);
    QCOMPARE(PlaybackSpeeds::slower(1.1), 1.0);
    QCOMPARE(PlaybackSpeeds::text(0.25), QStringLiteral("0.25×"));
}

QTEST_APPLESS_MAIN(VideoFactsTextTest)
#include "VideoFactsTextTest.moc"
