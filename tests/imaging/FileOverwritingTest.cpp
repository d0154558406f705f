#include "imaging/FilePublisher.h"

#include "tests/imaging/Publishing.h"
#include "tests/support/ResourceLimits.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/mount.h>
#include <sys/stat.h>

using namespace publishing;
using testsupport::FileSizeLimit;

namespace {

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status;
}

} // namespace

/// FilePublisher with an old file that is writable but cannot be replaced.
class FileOverwritingTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    [[nodiscard]] QStringList files() const { return filesIn(m_folder->path()); }

private slots:
    /// Everybody may write to the file, but only another user, its owner, to the folder.
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(put(path("file"), "old"));
        QVERIFY(setMode(path("file"), 0666));
        QVERIFY(setMode(m_folder->path(), 0555));
    }
    void cleanup()
    {
        static_cast<void>(setMode(m_folder->path(), 0700));
        m_folder->setAutoRemove(!QTest::currentTestFailed());
    }

    void publish_overwrites_whenTheFolderIsWriteProtected_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("longer") << QByteArray(largeSize, 'x');
        QTest::newRow("shorter") << QByteArray("a");
        QTest::newRow("as long") << QByteArray("new");
        QTest::newRow("empty") << QByteArray();
    }
    void publish_overwrites_whenTheFolderIsWriteProtected()
    {
        QFETCH(QByteArray, content);
        const struct stat before = statusOf(path("file"));
        QCOMPARE(publishedByNobody(path("file"), ExistingFile::Replace, content),
                 WriteResult::Written);
        QCOMPARE(read(path("file")), content);
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
        const struct stat after = statusOf(path("file"));
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_uid, before.st_uid);
    }

    void publish_overwritesNothing_whenToldToKeepIt()
    {
        QVERIFY(publishedByNobody(path("file"), ExistingFile::Keep) != WriteResult::Written);
        QCOMPARE(read(path("file")), QByteArray("old"));
    }

    void publish_overwritesNothing_whenTheFileIsWriteProtectedToo()
    {
        QVERIFY(setMode(path("file"), 0444));
        QCOMPARE(publishedByNobody(path("file"), ExistingFile::Replace), WriteResult::Failed);
        QCOMPARE(read(path("file")), QByteArray("old"));
    }

    void publish_overwrites_whenTheFileIsAnothersInAFolderForAll()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root can make a file and write it as somebody else.");
        }
        QVERIFY(setMode(m_folder->path(), 01777));
        QCOMPARE(publishedByNobody(path("file"), ExistingFile::Replace), WriteResult::Written);
        QCOMPARE(read(path("file")), QByteArray("new"));
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
    }

    void publish_overwrites_whenTheFileIsAMountPoint()
    {
#ifdef Q_OS_LINUX
        const QTemporaryDir other;
        const QString source = other.filePath(QStringLiteral("source"));
        QVERIFY(put(source, "mounted"));
        const QByteArray target = QFile::encodeName(path("file"));
        if (::mount(QFile::encodeName(source).constData(), target.constData(), nullptr, MS_BIND,
                    nullptr) != 0) {
            QSKIP("Mounting a file needs root's rights.");
        }
        const WriteResult result =
            FilePublisher::publish(path("file"), "new", ExistingFile::Replace);
        QCOMPARE(::umount(target.constData()), 0);
        QCOMPARE(result, WriteResult::Written);
        QCOMPARE(read(source), QByteArray("new"));
        QCOMPARE(read(path("file")), QByteArray("old"));
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
#else
        QSKIP("Single files are mounted on Linux only.");
#endif
    }

    void publish_leavesTheOldContent_whenThereIsNoRoom()
    {
        WriteResult result = WriteResult::Written;
        {
            const FileSizeLimit limit(100000);
            result =
                publishedByNobody(path("file"), ExistingFile::Replace, QByteArray(largeSize, 'x'));
        }
        QCOMPARE(result, WriteResult::Failed);
        QCOMPARE(read(path("file")), QByteArray("old"));
        QCOMPARE(files(), QStringList{QStringLiteral("file")});
    }
};

QTEST_GUILESS_MAIN(FileOverwritingTest)
#include "FileOverwritingTest.moc"
