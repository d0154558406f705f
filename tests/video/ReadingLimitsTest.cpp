#include "video/ReadingLimits.h"

#include "tests/support/Samples.h"
#include "video/FrameGrabber.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using testsupport::samplePath;

class ReadingLimitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limits_areThoseOfTheSettings_whereTheyCanBeUsed_data()
    {
        QTest::addColumn<QVariant>("memory");
        QTest::addColumn<QVariant>("timeout");
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<int>("seconds");
        const qint64 usual = QtAV::usualPictureBytes;
        QTest::newRow("nothing said") << QVariant() << QVariant() << usual << 60;
        QTest::newRow("said") << QVariant(2048) << QVariant(5) << 2 * usual << 5;
        QTest::newRow("any time") << QVariant(1) << QVariant(0) << usual / 1024 << 0;
        QTest::newRow("words") << QVariant(QStringLiteral("much")) << QVariant(QStringLiteral("-"))
                               << usual << 60;
        QTest::newRow("too small") << QVariant(0) << QVariant(-1) << usual << 60;
        QTest::newRow("too large")
            << QVariant(qint64(1) << 50) << QVariant(qint64(1) << 50) << usual << 60;
    }
    void limits_areThoseOfTheSettings_whereTheyCanBeUsed()
    {
        QFETCH(const QVariant, memory);
        QFETCH(const QVariant, timeout);
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        if (memory.isValid()) {
            settings.setValue(QStringLiteral("limits/pictureMemoryMiB"), memory);
            settings.setValue(QStringLiteral("limits/positionTimeoutSeconds"), timeout);
        }
        const ReadingLimits limits = ReadingLimits::of(settings);
        QTEST(limits.pictureBytes, "bytes");
        QFETCH(const int, seconds);
        QCOMPARE(limits.positionTimeout, std::chrono::milliseconds(1000 * seconds));
    }

    void grabber_givesAnExtractionUp_whenItsTimeIsOver()
    {
        FrameGrabber grabber;
        grabber.setSource(samplePath(QStringLiteral("h264_gop250.mp4")));
        grabber.setPrecision(0);
        QVERIFY(grabber.getDuration() > 0);
        QSignalSpy errors(&grabber, &FrameGrabber::error);
        QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
        grabber.setPositionTimeout(std::chrono::milliseconds(1));
        grabber.extractInternal(9900);
        QCOMPARE(errors.size(), 1);
        const QString text = errors.first().first().toString();
        QVERIFY2(text.contains(QStringLiteral("given up after 0.001 seconds")),
                 qUtf8Printable(text));
        grabber.setPositionTimeout(std::chrono::milliseconds(0));
        grabber.extractInternal(9900);
        QCOMPARE(frames.size(), 1);
    }
};

QTEST_GUILESS_MAIN(ReadingLimitsTest)

#include "ReadingLimitsTest.moc"
