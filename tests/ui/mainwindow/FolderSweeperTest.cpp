#include "ui/mainwindow/FolderSweeper.h"

#include "tests/support/Patience.h"
#include "tests/support/TestDir.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

using testsupport::patienceMs;
using testsupport::TestDir;

class FolderSweeperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leftOverFile_goes_onceForEachFolder();
};

namespace {

/// Creates a file as left by a killed program two hours ago; returns its path.
QString leaveFileIn(const TestDir& dir)
{
    QFile file(dir.filePath(QStringLiteral(".morvantile-0123456789abcdef.part")));
    const QDateTime then = QDateTime::currentDateTime().addSecs(-2 * 3600);
    if (!file.open(QIODevice::WriteOnly) ||
        !file.setFileTime(then, QFileDevice::FileModificationTime)) {
        qFatal("no file is left");
    }
    return file.fileName();
}

} // namespace

void FolderSweeperTest::leftOverFile_goes_onceForEachFolder()
{
    const TestDir dir;
    const QString path = leaveFileIn(dir);
    {
        FolderSweeper sweeper;
        sweeper.sweep(dir.path());
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(path), patienceMs);
        static_cast<void>(leaveFileIn(dir));
        sweeper.sweep(dir.path());
    }
    // The destructor has waited for all started work.
    QVERIFY(QFile::exists(path));
    {
        FolderSweeper sweeper;
        sweeper.sweep(dir.path());
    }
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(FolderSweeperTest)
#include "FolderSweeperTest.moc"
