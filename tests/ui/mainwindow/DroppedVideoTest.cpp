#include "ui/mainwindow/DroppedVideo.h"

#include "tests/support/TestDir.h"

#include <QFile>
#include <QMimeData>
#include <QTest>
#include <QUrl>

using testsupport::TestDir;

class DroppedVideoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void path_isTheFirstVideos_amongOtherFiles();
    void path_isTheFirstFiles_whenNoneLooksLikeAVideo();
    void path_isEmpty_withoutLocalFiles();
};

namespace {

QUrl fileIn(const TestDir& dir, const QString& name)
{
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return QUrl::fromLocalFile(file.fileName());
}

} // namespace

void DroppedVideoTest::path_isTheFirstVideos_amongOtherFiles()
{
    const TestDir dir;
    QMimeData data;
    data.setUrls({fileIn(dir, QStringLiteral("notes.txt")), fileIn(dir, QStringLiteral("b ä.mkv")),
                  fileIn(dir, QStringLiteral("a.mp4"))});
    QCOMPARE(DroppedVideo::pathIn(data), dir.filePath(QStringLiteral("b ä.mkv")));
}

void DroppedVideoTest::path_isTheFirstFiles_whenNoneLooksLikeAVideo()
{
    const TestDir dir;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(dir.path()), fileIn(dir, QStringLiteral("notes.txt")),
                  fileIn(dir, QStringLiteral("more.txt"))});
    QCOMPARE(DroppedVideo::pathIn(data), dir.filePath(QStringLiteral("notes.txt")));
}

void DroppedVideoTest::path_isEmpty_withoutLocalFiles()
{
    const TestDir dir;
    QMimeData data;
    QCOMPARE(DroppedVideo::pathIn(data), QString());
    data.setText(QStringLiteral("film.mp4"));
    QCOMPARE(DroppedVideo::pathIn(data), QString());
    data.setUrls({QUrl(QStringLiteral("https://morvantile.example/a.mp4")),
                  QUrl::fromLocalFile(dir.filePath(QStringLiteral("gone.mp4")))});
    QCOMPARE(DroppedVideo::pathIn(data), QString());
}

QTEST_GUILESS_MAIN(DroppedVideoTest)
#include "DroppedVideoTest.moc"
