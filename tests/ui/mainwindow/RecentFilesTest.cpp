#include "ui/mainwindow/RecentFiles.h"

#include "tests/support/TestDir.h"

#include <QSettings>
#include <QTest>

using testsupport::TestDir;

class RecentFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newestFile_isFirst_andNoneIsTwice();
    void oldestFiles_go_whenThereAreTooMany();
    void cleared_thereAreNone();
};

namespace {

/// Settings in a folder of the case.
class Settings : public QSettings
{
public:
    explicit Settings(const TestDir& dir)
        : QSettings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat)
    {}
};

} // namespace

void RecentFilesTest::newestFile_isFirst_andNoneIsTwice()
{
    const TestDir dir;
    Settings settings(dir);
    for (const char* const file : {"/a.mp4", "/b, c.mp4", "/a.mp4"}) {
        RecentFiles::add(settings, QString::fromLatin1(file));
    }
    const Settings again(dir);
    QCOMPARE(RecentFiles::in(again),
             (QStringList{QStringLiteral("/a.mp4"), QStringLiteral("/b, c.mp4")}));
}

void RecentFilesTest::oldestFiles_go_whenThereAreTooMany()
{
    const TestDir dir;
    Settings settings(dir);
    for (int i = 0; i < 15; ++i) {
        RecentFiles::add(settings, QStringLiteral("/%1.mp4").arg(i));
    }
    QCOMPARE(RecentFiles::in(settings).size(), RecentFiles::most);
    QCOMPARE(RecentFiles::in(settings).first(), QStringLiteral("/14.mp4"));
}

void RecentFilesTest::cleared_thereAreNone()
{
    const TestDir dir;
    Settings settings(dir);
    RecentFiles::add(settings, QStringLiteral("/a.mp4"));
    RecentFiles::clear(settings);
    QVERIFY(RecentFiles::in(settings).isEmpty());
}

QTEST_GUILESS_MAIN(RecentFilesTest)
#include "RecentFilesTest.moc"
