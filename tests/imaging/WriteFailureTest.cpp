#include "imaging/WriteFailure.h"

#include "imaging/FilePublisher.h"
#include "tests/imaging/Publishing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <memory>
#include <sys/stat.h>

using publishing::exitCode;
using publishing::put;
using publishing::setMode;
using publishing::startProcess;

namespace {

enum Finding { WasWritten = 0, IsOfFolder = 1, IsOfFile = 2, NamesFile = 4 };

/// What a user without privileges learns when replacing the file.
int findingOf(const QString& path)
{
    return exitCode(startProcess([&path] {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::setuid(nobody) != 0) {
            return 255;
        }
        WriteFailure failure;
        if (FilePublisher::publish(path, "new", ExistingFile::Replace, &failure) !=
            WriteResult::Failed) {
            return static_cast<int>(WasWritten);
        }
        const int whose = failure.isOfFolder() ? IsOfFolder : IsOfFile;
        return failure.text().contains(path) ? whose | NamesFile : whose;
    }));
}

} // namespace

class WriteFailureTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(setMode(m_folder->path(), 0777));
    }
    void cleanup()
    {
        QVERIFY(setMode(m_folder->path(), 0777));
        m_folder->setAutoRemove(!QTest::currentTestFailed());
    }

    void protectedFile_isNamed_andIsNotTheFoldersFault()
    {
        QVERIFY(put(path("file"), "old"));
        QVERIFY(setMode(path("file"), 0444));
        QCOMPARE(findingOf(path("file")), IsOfFile | NamesFile);
    }

    void pipe_isNamed_andIsNotTheFoldersFault()
    {
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0666), 0);
        QCOMPARE(findingOf(path("pipe")), IsOfFile | NamesFile);
    }

    void folderOfThatName_isNamed_andIsNotTheFoldersFault()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        QCOMPARE(findingOf(path("folder")), IsOfFile | NamesFile);
    }

    void linkIntoAProtectedFolder_isNamed_andIsNotTheFoldersFault()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("protected")));
        QVERIFY(setMode(path("protected"), 0555));
        QVERIFY(QFile::link(path("protected/file"), path("link")));
        QCOMPARE(findingOf(path("link")), IsOfFile | NamesFile);
    }

    void protectedFolder_isAtFault()
    {
        QVERIFY(put(path("file"), "old"));
        QVERIFY(setMode(path("file"), 0444));
        QVERIFY(setMode(m_folder->path(), 0555));
        QCOMPARE(findingOf(path("new")), static_cast<int>(IsOfFolder));
        QCOMPARE(findingOf(path("file")), static_cast<int>(IsOfFolder));
    }

    void missingFolder_isAtFault()
    {
        QCOMPARE(findingOf(path("missing/file")), static_cast<int>(IsOfFolder));
    }

    void readOnlyDisk_isAtFault_evenIfTheFileExists()
    {
        QVERIFY(put(path("file"), "old"));
        QVERIFY(WriteFailure::of(path("file"), 3, EROFS).isOfFolder());
    }
};

QTEST_GUILESS_MAIN(WriteFailureTest)
#include "WriteFailureTest.moc"
