#include "imaging/JpegEncoder.h"

#include <QColorSpace>
#include <QImage>
#include <QTest>
#include <QtEndian>

#include <cmath>
#include <cstring>

namespace {

/// Red bars of one pixel on blue, like the strokes of small letters.
QImage redOnBlue(QImage::Format format)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = y % 3; x < image.width(); x += 3) {
            image.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    QImage converted = image.convertToFormat(format);
    converted.setColorSpace(QColorSpace(QColorSpace::SRgb));
    return converted;
}

/// The root mean square difference in red of two pictures, in levels of 255.
double redError(const QImage& a, const QImage& b)
{
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const double difference = qRed(a.pixel(x, y)) - qRed(b.pixel(x, y));
            sum += difference * difference;
        }
    }
    return std::sqrt(sum / (a.width() * a.height()));
}

/// An sRGB profile with this many additional bytes.
QColorSpace longProfile(int bytes)
{
    QByteArray profile = QColorSpace(QColorSpace::SRgb).iccProfile();
    for (int i = 0; i < bytes; ++i) {
        profile.append(static_cast<char>(i % 251));
    }
    const quint32 size = qToBigEndian(static_cast<quint32>(profile.size()));
    std::memcpy(profile.data(), &size, sizeof size);
    return QColorSpace::fromIccProfile(profile);
}

} // namespace

class JpegEncoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encode_keepsChroma_data()
    {
        QTest::addColumn<QImage::Format>("format");
        for (const auto format :
             {QImage::Format_RGB888, QImage::Format_BGR888, QImage::Format_RGB32,
              QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBX8888,
              QImage::Format_RGBA8888, QImage::Format_RGBX64, QImage::Format_RGBA64,
              QImage::Format_RGB30}) {
            QTest::addRow("format %d", format) << format;
        }
    }
    void encode_keepsChroma()
    {
        QFETCH(const QImage::Format, format);
        const QImage image = redOnBlue(format);
        QVERIFY(JpegEncoder::hasChroma(image));
        const QImage decoded = QImage::fromData(JpegEncoder::encode(image, 100), "jpeg");
        QCOMPARE(decoded.size(), image.size());
        const double error = redError(decoded, image);
        QVERIFY2(error < 1.0, qPrintable(QString::number(error)));
    }

    void encode_writesProfileAndResolution()
    {
        QImage image = redOnBlue(QImage::Format_RGB888);
        image.setDotsPerMeterX(3780);
        image.setDotsPerMeterY(7874);
        const QByteArray content = JpegEncoder::encode(image, 90);
        const QImage decoded = QImage::fromData(content, "jpeg");
        QCOMPARE(decoded.colorSpace(), QColorSpace(QColorSpace::SRgb));
        QVERIFY(content.contains(QColorSpace(QColorSpace::SRgb).iccProfile()));
        QCOMPARE(qRound(decoded.dotsPerMeterX() * 0.0254), 96);
        QCOMPARE(qRound(decoded.dotsPerMeterY() * 0.0254), 200);
    }

    void encode_writesALongProfileInParts()
    {
        QImage image = redOnBlue(QImage::Format_RGB888);
        const QColorSpace space = longProfile(150000);
        QVERIFY(space.isValid());
        // Spaces with the same meaning compare equal, and the first would be kept.
        image.setColorSpace(QColorSpace());
        image.setColorSpace(space);
        const QImage decoded = QImage::fromData(JpegEncoder::encode(image, 95), "jpeg");
        QCOMPARE(decoded.colorSpace().iccProfile(), space.iccProfile());
    }

    void encode_givesTheSameBytes_eachTime()
    {
        const QImage image = redOnBlue(QImage::Format_RGB888);
        QCOMPARE(JpegEncoder::encode(image, 93), JpegEncoder::encode(image, 93));
    }

    void encode_isEmpty_whenThereCanBeNoJpeg()
    {
        QCOMPARE(JpegEncoder::encode(QImage(), 100), QByteArray());
        QImage wide(66000, 2, QImage::Format_RGB888);
        wide.fill(Qt::red);
        QCOMPARE(JpegEncoder::encode(wide, 100), QByteArray());
    }

    void greys_haveNoChroma()
    {
        QVERIFY(!JpegEncoder::hasChroma(QImage(8, 8, QImage::Format_Grayscale8)));
        QImage indexed(8, 8, QImage::Format_Indexed8);
        indexed.setColorTable({qRgb(0, 0, 0), qRgb(9, 9, 9)});
        QVERIFY(!JpegEncoder::hasChroma(indexed));
        indexed.setColorTable({qRgb(0, 0, 0), qRgb(9, 9, 8)});
        QVERIFY(JpegEncoder::hasChroma(indexed));
    }
};

QTEST_MAIN(JpegEncoderTest)
#include "JpegEncoderTest.moc"
