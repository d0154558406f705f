#include "ui/mainwindow/SavePath.h"

#include <QImageWriter>
#include <QTest>

#include <utility>

class SavePathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameFilters_areTheImageTypesInOrder();
    void path_isCompleted_unlessItIsAnImagesAlready_data();
    void path_isCompleted_unlessItIsAnImagesAlready();
};

void SavePathTest::nameFilters_areTheImageTypesInOrder()
{
    QStringList expected{QStringLiteral("JPEG (*.jpg *.jpeg)"), QStringLiteral("PNG (*.png)"),
                         QStringLiteral("BMP (*.bmp)"), QStringLiteral("TIFF (*.tif *.tiff)")};
    const auto writable = QImageWriter::supportedImageFormats();
    for (const auto& [suffix, filter] :
         {std::pair("webp", "WebP (*.webp)"), std::pair("avif", "AVIF (*.avif)"),
          std::pair("jxl", "JPEG XL (*.jxl)")}) {
        if (writable.contains(suffix)) {
            expected += QString::fromLatin1(filter);
        }
    }
    QCOMPARE(SavePath::nameFilters(), expected);
}

void SavePathTest::path_isCompleted_unlessItIsAnImagesAlready_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("filter");
    QTest::addColumn<QString>("completed");
    const auto row = [](const char* path, int filter, const char* completed) {
        QTest::addRow("%s %d", path, filter)
            << QString::fromLatin1(path) << filter << QString::fromLatin1(completed);
    };
    row("/a/clip", 0, "/a/clip.jpg");
    row("/a/clip", 3, "/a/clip.tif");
    row("/a.png/clip", 1, "/a.png/clip.png");
    row("/a/show.S01E01", 1, "/a/show.S01E01.png");
    row("/a/clip.jpeg", 1, "/a/clip.jpeg");
    row("/a/CLIP.TIFF", 0, "/a/CLIP.TIFF");
    row("/a/clip.", 2, "/a/clip..bmp");
}

void SavePathTest::path_isCompleted_unlessItIsAnImagesAlready()
{
    QFETCH(const QString, path);
    QFETCH(const int, filter);
    QTEST(SavePath::completed(path, SavePath::nameFilters().at(filter)), "completed");
}

QTEST_GUILESS_MAIN(SavePathTest)
#include "SavePathTest.moc"
