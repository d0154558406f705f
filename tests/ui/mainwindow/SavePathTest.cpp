#include "ui/mainwindow/SavePath.h"

#include "tests/support/TestDir.h"

#include <QFile>
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
    void nextFree_countsOn_data();
    void nextFree_countsOn();
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

void SavePathTest::nextFree_countsOn_data()
{
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("next");
    QTest::newRow("free") << "other.jpg"
                          << "film"
                          << "film";
    QTest::newRow("another type") << "film.png"
                                  << "film"
                                  << "film";
    QTest::newRow("taken") << "film.jpg"
                           << "film"
                           << "film-2";
    QTest::newRow("taken with its type") << "one.png"
                                         << "one.png"
                                         << "one-2.png";
    QTest::newRow("twice") << "one.png one-2.png"
                           << "one.png"
                           << "one-3.png";
    QTest::newRow("counted") << "one-2.png"
                             << "one-2.png"
                             << "one-3.png";
    QTest::newRow("zeros") << "a_0099.png"
                           << "a_0099.png"
                           << "a_0100.png";
    QTest::newRow("no counter") << "take7.png"
                                << "take7.png"
                                << "take7-2.png";
    QTest::newRow("dots") << "a.b.jpg"
                          << "a.b"
                          << "a.b-2";
    QTest::newRow("the video's number") << "film-2024.jpg"
                                        << "film-2024"
                                        << "film-2024-2";
}

void SavePathTest::nextFree_countsOn()
{
    QFETCH(const QString, files);
    QFETCH(const QString, name);
    QFETCH(const QString, next);
    const testsupport::TestDir dir;
    const QStringList names = files.split(QLatin1Char(' '));
    for (const QString& file : names) {
        QFile made(dir.filePath(file));
        QVERIFY(made.open(QIODevice::WriteOnly));
    }
    QCOMPARE(SavePath::nextFree(QDir(dir.path()), name, QStringLiteral("JPEG (*.jpg *.jpeg)"),
                                QStringLiteral("film-2024")),
             next);
}

QTEST_GUILESS_MAIN(SavePathTest)
#include "SavePathTest.moc"
