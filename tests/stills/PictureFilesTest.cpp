#include "stills/PictureFiles.h"

#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

using stills::Existing;
using stills::PictureFiles;
using testsupport::TestDir;
using Kind = PictureFiles::Outcome::Kind;

namespace {

QByteArray nameFor(int attempt)
{
    return attempt == 1 ? QByteArray("a.jpg") : "a-" + QByteArray::number(attempt) + ".jpg";
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
}

} // namespace

class PictureFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takenNames_giveWayToTheNextFreeOne();
    void linksThatLeadNowhere_areTakenNames();
    void existingFiles_areSkipped_onRequest();
    void existingFiles_areOverwritten_onRequest();
    void filesOfThisRun_areNeverOverwritten();
    void missingFolder_isAnError_thatNamesIt();
    void fileThatCannotBeReplaced_isAnErrorOfItsOwn_thatNamesIt();
};

void PictureFilesTest::takenNames_giveWayToTheNextFreeOne()
{
    const TestDir dir;
    put(dir.filePath(QStringLiteral("a.jpg")), "old");
    put(dir.filePath(QStringLiteral("a-2.jpg")), "old");
    const auto outcome =
        PictureFiles(Existing::NextName).write(dir.path(), nameFor, QByteArray("new"));
    QVERIFY(outcome.kind == Kind::Written);
    QCOMPARE(outcome.path, dir.filePath(QStringLiteral("a-3.jpg")));
    QCOMPARE(contentOf(outcome.path), QByteArray("new"));
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("a.jpg"))), QByteArray("old"));
}

void PictureFilesTest::linksThatLeadNowhere_areTakenNames()
{
    const TestDir dir;
    QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), dir.filePath(QStringLiteral("a.jpg"))));
    const auto outcome =
        PictureFiles(Existing::NextName).write(dir.path(), nameFor, QByteArray("new"));
    QCOMPARE(outcome.path, dir.filePath(QStringLiteral("a-2.jpg")));
}

void PictureFilesTest::existingFiles_areSkipped_onRequest()
{
    const TestDir dir;
    put(dir.filePath(QStringLiteral("a.jpg")), "old");
    const auto outcome = PictureFiles(Existing::Skip).write(dir.path(), nameFor, QByteArray("new"));
    QVERIFY(outcome.kind == Kind::Skipped);
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("a.jpg"))), QByteArray("old"));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.jpg")});
}

void PictureFilesTest::existingFiles_areOverwritten_onRequest()
{
    const TestDir dir;
    put(dir.filePath(QStringLiteral("a.jpg")), "old");
    const auto outcome =
        PictureFiles(Existing::Overwrite).write(dir.path(), nameFor, QByteArray("new"));
    QVERIFY(outcome.kind == Kind::Written);
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("a.jpg"))), QByteArray("new"));
}

void PictureFilesTest::filesOfThisRun_areNeverOverwritten()
{
    for (const Existing existing : {Existing::NextName, Existing::Skip, Existing::Overwrite}) {
        const TestDir dir;
        PictureFiles files(existing);
        QVERIFY(files.write(dir.path(), nameFor, QByteArray("first")).kind == Kind::Written);
        const auto second = files.write(dir.path(), nameFor, QByteArray("second"));
        QVERIFY(second.kind == Kind::Written);
        QCOMPARE(contentOf(dir.filePath(QStringLiteral("a.jpg"))), QByteArray("first"));
        QCOMPARE(contentOf(dir.filePath(QStringLiteral("a-2.jpg"))), QByteArray("second"));
    }
}

void PictureFilesTest::missingFolder_isAnError_thatNamesIt()
{
    const TestDir dir;
    const QString folder = dir.filePath(QStringLiteral("gone"));
    const auto outcome = PictureFiles(Existing::NextName).write(folder, nameFor, QByteArray("new"));
    QVERIFY(outcome.kind == Kind::NoRoom);
    QVERIFY(outcome.error.contains(folder));
}

void PictureFilesTest::fileThatCannotBeReplaced_isAnErrorOfItsOwn_thatNamesIt()
{
    const TestDir dir;
    const QString pipe = dir.filePath(QStringLiteral("a.jpg"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const auto outcome =
        PictureFiles(Existing::Overwrite).write(dir.path(), nameFor, QByteArray("new"));
    QVERIFY(outcome.kind == Kind::Failed);
    QVERIFY(outcome.error.contains(pipe));
}

QTEST_GUILESS_MAIN(PictureFilesTest)

#include "PictureFilesTest.moc"
