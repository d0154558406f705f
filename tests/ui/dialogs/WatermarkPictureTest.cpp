#include "ui/dialogs/WatermarkPicture.h"

#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/TestProfiles.h"

#include <QFile>
#include <QImageWriter>
#include <QRegularExpression>
#include <QTest>

using testsupport::TestProfiles;

namespace {

QString saved(const TestProfiles& profiles, const QString& name, const QImage& image)
{
    const QString path = profiles.dir().filePath(name);
    return image.save(path) ? path : QString();
}

QImage plainPicture(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Two colours, since only one bit per pixel fits for so many pixels.
QImage huge(QSize size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(1);
    return image;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

class WatermarkPictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallPicture_isReadAsItIs();
    void alpha_isKept();
    void largePicture_isMadeToFit();
    void pictures_areUpright_asTheirFilesSay();
    void narrowPicture_keepsAPixel();
    void tooLargePicture_isNotRead();
    void longPicture_isRead();
    void whatIsNoPicture_isNotRead_data();
    void whatIsNoPicture_isNotRead();
    void truncatedPicture_isNotRead();
    void wrongSuffix_doesNotMatter();
    void copy_isThePictureUnderANewName();
    void copy_hasWholeSuffix_data();
    void copy_hasWholeSuffix();
    void copiesOfTheSame_haveDifferentNames();
    void copyOfMissingFile_isNoPicture();
};

void WatermarkPictureTest::smallPicture_isReadAsItIs()
{
    const TestProfiles profiles;
    const QImage image = plainPicture({1024, 50}, Qt::red);
    const QString path = saved(profiles, QStringLiteral("a.png"), image);
    QCOMPARE(WatermarkPicture::readForDisplay(path), image);
    QVERIFY(!WatermarkPicture::isTooLarge(path));
}

void WatermarkPictureTest::alpha_isKept()
{
    const TestProfiles profiles;
    QImage image(2000, 1000, QImage::Format_ARGB32);
    image.fill(QColor(10, 20, 30, 40));
    const QString path = saved(profiles, QStringLiteral("a.png"), image);
    const QImage read = WatermarkPicture::readForDisplay(path);
    QCOMPARE(read.size(), QSize(1024, 512));
    QCOMPARE(read.pixelColor(500, 250).alpha(), 40);
}

void WatermarkPictureTest::largePicture_isMadeToFit()
{
    const TestProfiles profiles;
    QImage image = plainPicture({3000, 4500}, Qt::blue);
    for (const char* const name : {"a.png", "a.jpg", "a.bmp"}) {
        const QString path = saved(profiles, QLatin1String(name), image);
        const QImage read = WatermarkPicture::readForDisplay(path);
        QCOMPARE(read.size(), QSize(682, 1024));
        QVERIFY2(read.pixelColor(300, 500).blue() > 250, name);
    }
}

void WatermarkPictureTest::pictures_areUpright_asTheirFilesSay()
{
    const TestProfiles profiles;
    const QString path = profiles.dir().filePath(QStringLiteral("turned.jpg"));
    for (const QSize stored : {QSize(32, 16), QSize(4096, 2048)}) {
        QImageWriter writer(path);
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        QVERIFY(writer.write(plainPicture(stored, Qt::red)));
        const QSize shown = WatermarkPicture::readForDisplay(path).size();
        QCOMPARE(shown, stored.transposed().boundedTo({512, 1024}));
    }
}

void WatermarkPictureTest::narrowPicture_keepsAPixel()
{
    const TestProfiles profiles;
    const QString path =
        saved(profiles, QStringLiteral("a.png"), plainPicture({1, 20000}, Qt::green));
    QCOMPARE(WatermarkPicture::readForDisplay(path).size(), QSize(1, 1024));
}

void WatermarkPictureTest::tooLargePicture_isNotRead()
{
    const TestProfiles profiles;
    const QString path = saved(profiles, QStringLiteral("a.png"), huge({20000, 20000}));
    QVERIFY(WatermarkPicture::isTooLarge(path));
    QVERIFY(WatermarkPicture::readForDisplay(path).isNull());
}

void WatermarkPictureTest::longPicture_isRead()
{
    const TestProfiles profiles;
    const QString path = saved(profiles, QStringLiteral("a.png"), huge({20000, 100}));
    QVERIFY(!WatermarkPicture::isTooLarge(path));
    QCOMPARE(WatermarkPicture::readForDisplay(path).size(), QSize(1024, 5));
}

void WatermarkPictureTest::whatIsNoPicture_isNotRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QStringLiteral("a.png") << QByteArray("no picture");
    QTest::newRow("empty") << QStringLiteral("a.jpg") << QByteArray();
}

void WatermarkPictureTest::whatIsNoPicture_isNotRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const TestProfiles profiles;
    const QString path = profiles.dir().filePath(name);
    QVERIFY(write(path, bytes));
    QVERIFY(WatermarkPicture::readForDisplay(path).isNull());
    QVERIFY(!WatermarkPicture::isTooLarge(path));
    const QString missing = path + QStringLiteral(".gone.png");
    QVERIFY(WatermarkPicture::readForDisplay(missing).isNull());
    QVERIFY(!WatermarkPicture::isTooLarge(missing));
    QVERIFY(WatermarkPicture::readForDisplay(profiles.dir().path()).isNull());
}

void WatermarkPictureTest::truncatedPicture_isNotRead()
{
    const TestProfiles profiles;
    QImage noise(2000, 500, QImage::Format_RGB32);
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x) {
            noise.setPixel(x, y, qRgb(x * 7, y * 13, x * y));
        }
    }
    const QString path = saved(profiles, QStringLiteral("a.png"), noise);
    const QByteArray whole = contents(path);
    QVERIFY(write(path, whole.left(whole.size() / 2)));
    QVERIFY(WatermarkPicture::readForDisplay(path).isNull());
}

void WatermarkPictureTest::wrongSuffix_doesNotMatter()
{
    const TestProfiles profiles;
    const QImage image = plainPicture({30, 20}, Qt::red);
    const QString path = saved(profiles, QStringLiteral("a.png"), image);
    const QString renamed = profiles.dir().filePath(QStringLiteral("a.jpg"));
    QVERIFY(QFile::rename(path, renamed));
    QCOMPARE(WatermarkPicture::readForDisplay(renamed), image);
}

void WatermarkPictureTest::copy_isThePictureUnderANewName()
{
    const TestProfiles profiles;
    const QString path =
        saved(profiles, QStringLiteral("logo.png"), plainPicture({30, 20}, Qt::red));
    const QString name = WatermarkPicture::addCopyOf(path);
    const QRegularExpression expected(QStringLiteral(
        "^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\\.png$"));
    QVERIFY2(expected.match(name).hasMatch(), qPrintable(name));
    QCOMPARE(profiles.watermarkFiles(), QStringList{name});
    const QByteArray original = contents(path);
    QVERIFY(!original.isEmpty());
    QVERIFY(QFile::remove(path));
    QCOMPARE(contents(WatermarkProfile::pathForImage(name)), original);
}

void WatermarkPictureTest::copy_hasWholeSuffix_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("two dots") << QStringLiteral("logo.v2.PNG") << QStringLiteral(".v2.PNG");
    QTest::newRow("none") << QStringLiteral("logo") << QStringLiteral(".");
    QTest::newRow("other letters") << QStringLiteral("写真 1.bmp") << QStringLiteral(".bmp");
}

void WatermarkPictureTest::copy_hasWholeSuffix()
{
    QFETCH(QString, source);
    QFETCH(QString, suffix);
    const TestProfiles profiles;
    const QString path = profiles.dir().filePath(source);
    QVERIFY(plainPicture({3, 2}, Qt::red).save(path, "PNG"));
    const QString name = WatermarkPicture::addCopyOf(path);
    QCOMPARE(name.mid(36), suffix);
    QCOMPARE(WatermarkPicture::readForDisplay(WatermarkProfile::pathForImage(name)).size(),
             QSize(3, 2));
}

void WatermarkPictureTest::copiesOfTheSame_haveDifferentNames()
{
    const TestProfiles profiles;
    const QString path = saved(profiles, QStringLiteral("logo.png"), plainPicture({3, 2}, Qt::red));
    const QString first = WatermarkPicture::addCopyOf(path);
    const QString second = WatermarkPicture::addCopyOf(path);
    QVERIFY(first != second);
    QCOMPARE(profiles.watermarkFiles().size(), 2);
}

void WatermarkPictureTest::copyOfMissingFile_isNoPicture()
{
    const TestProfiles profiles;
    const QString name =
        WatermarkPicture::addCopyOf(profiles.dir().filePath(QStringLiteral("gone.png")));
    QVERIFY(name.endsWith(QLatin1String(".png")));
    QVERIFY(WatermarkPicture::readForDisplay(WatermarkProfile::pathForImage(name)).isNull());
}

QTEST_MAIN(WatermarkPictureTest)
#include "WatermarkPictureTest.moc"
