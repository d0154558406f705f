#include "imaging/ImageFileWriter.h"

#include "imaging/HdrColours.h"
#include "tests/support/Pixels.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/TestDir.h"

#include <QColorSpace>
#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <memory>

using testsupport::contentOf;
using testsupport::MemoryLimit;
using testsupport::pixelsOf;

namespace {

QImage gradient()
{
    QImage image(40, 30, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb(6 * x, 8 * y, (x * y) % 256));
        }
    }
    return image;
}

/// A picture that no format compresses much.
QImage noise(QSize size, QImage::Format format = QImage::Format_RGB888)
{
    QRandomGenerator generator(7);
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        uchar* const line = image.scanLine(y);
        std::generate(line, line + image.depth() / 8 * size.width(),
                      [&] { return uchar(generator.generate()); });
    }
    return image;
}

/// Of high dynamic range, as it is stored.
QImage hdrNoise(QSize size)
{
    QImage image = noise(size, QImage::Format_RGBX64);
    image.setColorSpace(HdrColours::colorSpaceOf(
        {QtAV::StoredColours::Transfer::Pq, QtAV::StoredColours::Primaries::Bt2020}));
    return image;
}

} // namespace

class ImageFileWriterTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }

private slots:
    void initTestCase() { MemoryLimit::prepare(); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder->setAutoRemove(!QTest::currentTestFailed()); }

    void write_takesTheFormatFromTheSuffix_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << QByteArray("jpeg");
        QTest::newRow("jpeg") << QStringLiteral("a.jpeg") << QByteArray("jpeg");
        QTest::newRow("png") << QStringLiteral("a.png") << QByteArray("png");
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << QByteArray("bmp");
        QTest::newRow("tif") << QStringLiteral("a.tif") << QByteArray("tiff");
        QTest::newRow("tiff") << QStringLiteral("a.tiff") << QByteArray("tiff");
        QTest::newRow("capitals") << QStringLiteral("a.PNG") << QByteArray("png");
        QTest::newRow("several dots") << QStringLiteral("a.jpg.b.png") << QByteArray("png");
        QTest::newRow("hidden") << QStringLiteral(".jpg") << QByteArray("jpeg");
    }
    void write_takesTheFormatFromTheSuffix()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        const QString path = m_folder->filePath(name);
        QCOMPARE(ImageFileWriter::write(path, gradient(), ImageFileWriter::defaultQuality,
                                        ExistingFile::Keep),
                 WriteResult::Written);
        QCOMPARE(files(), QStringList{name});
        QImageReader reader(path);
        reader.setDecideFormatFromContent(true);
        QCOMPARE(reader.format(), format);
        const QImage image = reader.read();
        QCOMPARE(image.size(), gradient().size());
        if (format != "jpeg") {
            QCOMPARE(pixelsOf(image, QImage::Format_ARGB32), gradient());
        }
    }

    void write_givesWhatQtsWriterGives_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("quality");
        const auto add = [](const char* suffix, const QVector<int>& qualities) {
            for (const int quality : qualities) {
                QTest::addRow("%s %d", suffix, quality) << QString::fromLatin1(suffix) << quality;
            }
        };
        add("jpg", {-1, 0, 50, 89});
        add("png", {0, 50, 89});
        add("bmp", {-1, 0, 50, 100, 150});
        add("tiff", {-1, 0, 50, 100, 150});
    }
    void write_givesWhatQtsWriterGives()
    {
        QFETCH(QString, suffix);
        QFETCH(int, quality);
        const QString ours = m_folder->filePath(QStringLiteral("ours.") + suffix);
        const QString qts = m_folder->filePath(QStringLiteral("qts.") + suffix);
        QImageWriter writer(qts);
        writer.setQuality(quality);
        QImage tagged = gradient();
        tagged.setColorSpace(QColorSpace(QColorSpace::SRgb));
        QVERIFY(writer.write(tagged));
        QCOMPARE(ImageFileWriter::write(ours, gradient(), quality, ExistingFile::Keep),
                 WriteResult::Written);
        QVERIFY(contentOf(ours) == contentOf(qts));
    }

    void write_halvesTheChromaOfJpegs_belowQuality90()
    {
        QImage image(48, 48, QImage::Format_RGB888);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, (x + y) % 3 == 0 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
            }
        }
        const auto farthestRed = [&image](int quality) {
            const QImage decoded =
                QImage::fromData(ImageFileWriter::encode(image, QStringLiteral("JPEG"), quality));
            int farthest = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    farthest = std::max(
                        farthest, std::abs(qRed(decoded.pixel(x, y)) - qRed(image.pixel(x, y))));
                }
            }
            return farthest;
        };
        QVERIFY(farthestRed(89) > 100);
        QVERIFY(farthestRed(90) < 60);
        QVERIFY(farthestRed(100) < 4);
        QCOMPARE(ImageFileWriter::encode(image, QStringLiteral("jpg"), 150),
                 ImageFileWriter::encode(image, QStringLiteral("jpg"), 100));
    }

    void write_compressesPngs_whateverTheQuality()
    {
        const QImage image = gradient().scaled(400, 300);
        const auto size = [&image](int quality) {
            const QByteArray content =
                ImageFileWriter::encode(image, QStringLiteral("png"), quality);
            const QImage decoded = QImage::fromData(content);
            return pixelsOf(decoded, image.format()) == image ? int(content.size()) : -1;
        };
        for (const int quality : {-1, 0, 50, 89, 90, 100, 150}) {
            QVERIFY2(size(quality) > 0, qPrintable(QString::number(quality)));
            QVERIFY2(size(quality) < 100000, qPrintable(QString::number(size(quality))));
        }
    }

    void write_addsAColourProfile_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("quality");
        QTest::newRow("jpg with halved chroma") << QStringLiteral("jpg") << 80;
        QTest::newRow("jpg") << QStringLiteral("jpg") << 95;
        QTest::newRow("png") << QStringLiteral("png") << -1;
        QTest::newRow("tiff") << QStringLiteral("tiff") << -1;
    }
    void write_addsAColourProfile()
    {
        QFETCH(QString, suffix);
        QFETCH(int, quality);
        const auto profileOf = [&](const QImage& image) {
            return QImage::fromData(ImageFileWriter::encode(image, suffix, quality)).colorSpace();
        };
        QCOMPARE(profileOf(gradient()), QColorSpace(QColorSpace::SRgb));
        QImage wide = gradient();
        wide.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
        QCOMPARE(profileOf(wide), QColorSpace(QColorSpace::AdobeRgb));
    }

    void write_leavesTheImageAsItIs()
    {
        QImage image = gradient().convertToFormat(QImage::Format_Indexed8);
        image.setText(QStringLiteral("Title"), QStringLiteral("a title"));
        const QByteArray content = ImageFileWriter::encode(image, QStringLiteral("png"), -1);
        QVERIFY(!image.colorSpace().isValid());
        const QImage decoded = QImage::fromData(content);
        QCOMPARE(decoded.colorTable(), image.colorTable());
        QCOMPARE(decoded.text(QStringLiteral("Title")), QStringLiteral("a title"));
        QCOMPARE(pixelsOf(decoded, QImage::Format_RGB32), pixelsOf(image, QImage::Format_RGB32));
    }

    void write_failsWithoutATrace_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QImage>("image");
        QTest::newRow("null image") << QStringLiteral("a.jpg") << QImage();
        QTest::newRow("unknown suffix") << QStringLiteral("a.xyz") << gradient();
        QTest::newRow("empty suffix") << QStringLiteral("a.") << gradient();
        QTest::newRow("no suffix") << QStringLiteral("png") << gradient();
        QTest::newRow("format that is only read") << QStringLiteral("a.gif") << gradient();
        QTest::newRow("suffix beyond ASCII") << QStringLiteral("a.ſpng") << gradient();
        QTest::newRow("missing folder") << QStringLiteral("missing/a.jpg") << gradient();
        QTest::newRow("larger than a JPEG can be")
            << QStringLiteral("a.jpg") << QImage(66000, 2, QImage::Format_Grayscale8);
    }
    void write_failsWithoutATrace()
    {
        QFETCH(QString, name);
        QFETCH(QImage, image);
        for (const auto existing : {ExistingFile::Keep, ExistingFile::Replace}) {
            QCOMPARE(ImageFileWriter::write(m_folder->filePath(name), image,
                                            ImageFileWriter::defaultQuality, existing),
                     WriteResult::Failed);
        }
        QCOMPARE(files(), QStringList());
    }

    void write_writesAllOrNothing_howeverLittleMemoryThereIs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QImage>("image");
        const QImage image = noise(QSize(2000, 1500));
        for (const char* const name : {"a.jpg", "a.png", "a.bmp", "a.tiff"}) {
            QTest::newRow(name) << QString::fromLatin1(name) << image;
        }
        QTest::newRow("HDR") << QStringLiteral("a.png") << hdrNoise(QSize(1500, 1000));
    }
    void write_writesAllOrNothing_howeverLittleMemoryThereIs()
    {
        if (!MemoryLimit::isPossible()) {
            QSKIP("Memory cannot be limited here.");
        }
        QFETCH(QString, name);
        QFETCH(const QImage, image);
        const QString path = m_folder->filePath(name);
        const auto write = [&path, &image] {
            return ImageFileWriter::write(path, image, 100, ExistingFile::Replace);
        };
        // The plugin of the format allocates its memory only now.
        QCOMPARE(write(), WriteResult::Written);
        const QByteArray whole = contentOf(path);
        int failures = 0;
        for (rlim_t mebibytes = 1; mebibytes < 128; mebibytes += mebibytes / 4 + 1) {
            QFile::remove(path);
            WriteResult result = WriteResult::Written;
            {
                const MemoryLimit limit(mebibytes * 1024 * 1024);
                result = write();
            }
            failures += result == WriteResult::Failed ? 1 : 0;
            QCOMPARE(files().size(), result == WriteResult::Failed ? 0 : 1);
            QVERIFY(result == WriteResult::Failed || contentOf(path) == whole);
        }
        QVERIFY(failures > 0);
        QCOMPARE(files(), QStringList{name});
    }

    void write_passesOnWhatToDoWithAnExistingFile()
    {
        const QString path = m_folder->filePath(QStringLiteral("a.png"));
        const QImage other = gradient().mirrored();
        const auto write = [&path](const QImage& image, ExistingFile existing) {
            return ImageFileWriter::write(path, image, ImageFileWriter::defaultQuality, existing);
        };
        QCOMPARE(write(gradient(), ExistingFile::Keep), WriteResult::Written);
        QCOMPARE(write(other, ExistingFile::Keep), WriteResult::AlreadyExists);
        QCOMPARE(pixelsOf(QImage(path), QImage::Format_ARGB32), gradient());
        QCOMPARE(write(other, ExistingFile::Replace), WriteResult::Written);
        QCOMPARE(pixelsOf(QImage(path), QImage::Format_ARGB32), other);
    }
};

QTEST_GUILESS_MAIN(ImageFileWriterTest)
#include "ImageFileWriterTest.moc"
