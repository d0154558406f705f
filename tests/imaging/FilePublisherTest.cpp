#include "imaging/FilePublisher.h"

#include "tests/imaging/Publishing.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

using namespace publishing;
using testsupport::FileSizeLimit;

Q_DECLARE_METATYPE(ExistingFile)

class FilePublisherTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    [[nodiscard]] QStringList files() const { return filesIn(m_folder->path()); }
    static void addBothWays()
    {
        QTest::addColumn<ExistingFile>("existing");
        QTest::newRow("replace") << ExistingFile::Replace;
        QTest::newRow("keep") << ExistingFile::Keep;
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    void cleanup() { m_folder->setAutoRemove(!QTest::currentTestFailed()); }

    void publish_writesTheWholeFileAndNothingElse_data() { addBothWays(); }
    void publish_writesTheWholeFileAndNothingElse()
    {
        QFETCH(ExistingFile, existing);
        const QByteArray content(largeSize, 'x');
        QCOMPARE(FilePublisher::publish(path("new.jpg"), content, existing), WriteResult::Written);
        QCOMPARE(read(path("new.jpg")), content);
        QCOMPARE(files(), QStringList{QStringLiteral("new.jpg")});
    }

    void publish_writesAnEmptyFile_whenThereIsNoContent()
    {
        QCOMPARE(FilePublisher::publish(path("empty"), {}, ExistingFile::Keep),
                 WriteResult::Written);
        QCOMPARE(read(path("empty")), QByteArray());
    }

    void publish_works_whateverTheNamesAre_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::newRow("place markers") << QStringLiteral("%1 %2 %3") << QStringLiteral("%1.jpg");
        QTest::newRow("other letters") << QStringLiteral("Füße") << QStringLiteral("写真.jpg");
        QTest::newRow("quotes, blanks")
            << QStringLiteral("a 'b' \"c\"") << QStringLiteral(" $x .jpg");
        QTest::newRow("longest") << QStringLiteral("d") << QString(255, QLatin1Char('n'));
    }
    void publish_works_whateverTheNamesAre()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        QVERIFY(QDir(m_folder->path()).mkdir(folder));
        const QString file = m_folder->filePath(folder + QLatin1Char('/') + name);
        QCOMPARE(FilePublisher::publish(file, "1", ExistingFile::Keep), WriteResult::Written);
        QCOMPARE(FilePublisher::publish(file, "2", ExistingFile::Replace), WriteResult::Written);
        QCOMPARE(read(file), QByteArray("2"));
        QCOMPARE(QDir(m_folder->filePath(folder)).entryList(QDir::Files | QDir::Hidden),
                 QStringList{name});
    }

    void publish_takesRelativeNames()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        const WriteResult result =
            FilePublisher::publish(QStringLiteral("near"), "1", ExistingFile::Keep);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(result, WriteResult::Written);
        QCOMPARE(read(path("near")), QByteArray("1"));
    }

    void publish_replacesTheFile_whenToldTo()
    {
        QVERIFY(put(path("file"), "a longer old content"));
        QCOMPARE(FilePublisher::publish(path("file"), "new", ExistingFile::Replace),
                 WriteResult::Written);
        QCOMPARE(read(path("file")), QByteArray("new"));
        QCOMPARE(files().size(), 1);
    }

    void publish_leavesTheFile_whenToldToKeepIt()
    {
        QVERIFY(put(path("file"), "old"));
        QCOMPARE(FilePublisher::publish(path("file"), "new", ExistingFile::Keep),
                 WriteResult::AlreadyExists);
        QCOMPARE(read(path("file")), QByteArray("old"));
        QCOMPARE(files().size(), 1);
    }

    void publish_leavesEvenADanglingLink_whenToldToKeep()
    {
        QVERIFY(QFile::link(path("nowhere"), path("link")));
        QCOMPARE(FilePublisher::publish(path("link"), "new", ExistingFile::Keep),
                 WriteResult::AlreadyExists);
        QVERIFY(!QFile::exists(path("nowhere")));
    }

    void publish_replacesWhatALinkLeadsTo()
    {
        QVERIFY(put(path("file"), "old"));
        QVERIFY(QFile::link(path("file"), path("link")));
        QCOMPARE(FilePublisher::publish(path("link"), "new", ExistingFile::Replace),
                 WriteResult::Written);
        QVERIFY(QFileInfo(path("link")).isSymLink());
        QCOMPARE(read(path("file")), QByteArray("new"));
    }

    void publish_makesWhatADanglingLinkLeadsTo()
    {
        QVERIFY(QFile::link(path("nowhere"), path("link")));
        QCOMPARE(FilePublisher::publish(path("link"), "new", ExistingFile::Replace),
                 WriteResult::Written);
        QCOMPARE(read(path("nowhere")), QByteArray("new"));
    }

    void publish_keepsThePermissions_whenItReplaces()
    {
        QVERIFY(put(path("file"), "old"));
        const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(path("file"), permissions));
        const auto before = QFile::permissions(path("file"));
        QCOMPARE(FilePublisher::publish(path("file"), "new", ExistingFile::Replace),
                 WriteResult::Written);
        QCOMPARE(QFile::permissions(path("file")), before);
    }

    void publish_givesNewFilesTheUsualPermissions()
    {
        QVERIFY(put(path("usual"), "1"));
        QCOMPARE(FilePublisher::publish(path("file"), "1", ExistingFile::Keep),
                 WriteResult::Written);
        QCOMPARE(QFile::permissions(path("file")), QFile::permissions(path("usual")));
    }

    void publish_fails_whenTheFolderIsMissing_data() { addBothWays(); }
    void publish_fails_whenTheFolderIsMissing()
    {
        QFETCH(ExistingFile, existing);
        QCOMPARE(FilePublisher::publish(path("missing/file"), "1", existing), WriteResult::Failed);
        QCOMPARE(files(), QStringList());
    }

    void publish_fails_whenTheFolderIsAFile_data() { addBothWays(); }
    void publish_fails_whenTheFolderIsAFile()
    {
        QFETCH(ExistingFile, existing);
        QVERIFY(put(path("folder"), "old"));
        QCOMPARE(FilePublisher::publish(path("folder/file"), "1", existing), WriteResult::Failed);
        QCOMPARE(read(path("folder")), QByteArray("old"));
    }

    void publish_fails_whenTheNameIsAFolders()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        QCOMPARE(FilePublisher::publish(path("folder"), "1", ExistingFile::Replace),
                 WriteResult::Failed);
        QCOMPARE(FilePublisher::publish(path("folder"), "1", ExistingFile::Keep),
                 WriteResult::AlreadyExists);
        QCOMPARE(files(), QStringList());
    }

    void publish_fails_whenTheNameIsNoRegularFiles()
    {
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QCOMPARE(FilePublisher::publish(path("pipe"), "1", ExistingFile::Replace),
                 WriteResult::Failed);
        QCOMPARE(files(), QStringList{QStringLiteral("pipe")});
    }

    void publish_fails_whenTheNameIsTooLong_data() { addBothWays(); }
    void publish_fails_whenTheNameIsTooLong()
    {
        QFETCH(ExistingFile, existing);
        const QByteArray name(256, 'n');
        QCOMPARE(FilePublisher::publish(path(name.constData()), "1", existing),
                 WriteResult::Failed);
        QCOMPARE(files(), QStringList());
    }

    void publish_fails_whenTheFolderIsWriteProtected_data() { addBothWays(); }
    void publish_fails_whenTheFolderIsWriteProtected()
    {
        QFETCH(ExistingFile, existing);
        QVERIFY(setMode(m_folder->path(), 0555));
        QCOMPARE(publishedByNobody(path("file"), existing), WriteResult::Failed);
        QVERIFY(setMode(m_folder->path(), 0777));
        QCOMPARE(files(), QStringList());
        QCOMPARE(publishedByNobody(path("file"), existing), WriteResult::Written);
    }

    void publish_fails_whenTheFileIsWriteProtected()
    {
        QVERIFY(setMode(m_folder->path(), 0777));
        QVERIFY(put(path("file"), "old"));
        QVERIFY(setMode(path("file"), 0444));
        QCOMPARE(publishedByNobody(path("file"), ExistingFile::Replace), WriteResult::Failed);
        QCOMPARE(read(path("file")), QByteArray("old"));
        QCOMPARE(files().size(), 1);
    }

    void publish_failsWithoutATrace_whenTheFileCannotGrow_data() { addBothWays(); }
    void publish_failsWithoutATrace_whenTheFileCannotGrow()
    {
        QFETCH(ExistingFile, existing);
        WriteResult result = WriteResult::Written;
        {
            const FileSizeLimit limit(100000);
            result = FilePublisher::publish(path("file"), QByteArray(largeSize, 'x'), existing);
        }
        QCOMPARE(result, WriteResult::Failed);
        QCOMPARE(files(), QStringList());
    }

    void publish_leavesTheOldFile_whenTheNewOneCannotGrow()
    {
        QVERIFY(put(path("file"), "old"));
        WriteResult result = WriteResult::Written;
        {
            const FileSizeLimit limit(100000);
            result = FilePublisher::publish(path("file"), QByteArray(largeSize, 'x'),
                                            ExistingFile::Replace);
        }
        QCOMPARE(result, WriteResult::Failed);
        QCOMPARE(read(path("file")), QByteArray("old"));
        QCOMPARE(files().size(), 1);
    }

    void publish_failsWithoutATrace_whenTheDiskIsFull()
    {
        const testsupport::SmallDisk disk;
        if (!disk.isThere()) {
            QSKIP("Mounting a small disk needs Linux and root's rights.");
        }
        const auto entries = [&disk] {
            return QDir(disk.path()).entryList(QDir::Files | QDir::Hidden);
        };
        const QString file = disk.path(QStringLiteral("file"));
        const WriteResult tooLarge =
            FilePublisher::publish(file, QByteArray(largeSize, 'x'), ExistingFile::Keep);
        QCOMPARE(tooLarge, WriteResult::Failed);
        QCOMPARE(entries(), QStringList());
        QCOMPARE(FilePublisher::publish(file, QByteArray(1000, 'x'), ExistingFile::Keep),
                 WriteResult::Written);
    }

    void preparedFile_isHidden_andGoesUnlessPublished()
    {
        auto file = FilePublisher::prepare(m_folder->path(), "content");
        QVERIFY(file);
        QCOMPARE(files().size(), 1);
        QVERIFY(files().first().startsWith(QLatin1Char('.')));
        file.reset();
        QVERIFY(files().isEmpty());
    }

    void preparedFile_isNull_whereItCannotBeWritten()
    {
        QVERIFY(!FilePublisher::prepare(path("nowhere"), "content"));
        const FileSizeLimit limit(1000);
        QVERIFY(!FilePublisher::prepare(m_folder->path(), QByteArray(largeSize, 'x')));
        QVERIFY(files().isEmpty());
    }

    void publishPrepared_givesTheNextName_whenOneIsTaken()
    {
        QVERIFY(put(path("taken"), "old"));
        auto file = FilePublisher::prepare(m_folder->path(), "new");
        QVERIFY(file);
        QCOMPARE(FilePublisher::publishPrepared(path("taken"), *file), WriteResult::AlreadyExists);
        QCOMPARE(FilePublisher::publishPrepared(path("free"), *file), WriteResult::Written);
        file.reset();
        QCOMPARE(files(), (QStringList{QStringLiteral("free"), QStringLiteral("taken")}));
        QCOMPARE(read(path("taken")), QByteArray("old"));
        QCOMPARE(read(path("free")), QByteArray("new"));
    }

    void publishPrepared_tellsWhy_whenTheNameCannotBeHad()
    {
        const auto file = FilePublisher::prepare(m_folder->path(), "new");
        QVERIFY(file);
        WriteFailure failure;
        QCOMPARE(FilePublisher::publishPrepared(path("nowhere/file"), *file, &failure),
                 WriteResult::Failed);
        QCOMPARE(failure.error, ENOENT);
    }

    void publish_hasOneWinner_whenManyProcessesRace()
    {
        constexpr int processes = 8;
        constexpr int names = 100;
        // Each process returns how many of the names it got.
        std::vector<pid_t> children;
        for (int number = 0; number < processes; ++number) {
            children.push_back(startProcess([this, number] {
                int won = 0;
                for (int name = 0; name < names; ++name) {
                    const QByteArray content(1000 + number, static_cast<char>('a' + number));
                    const WriteResult result = FilePublisher::publish(
                        path(QByteArray::number(name).constData()), content, ExistingFile::Keep);
                    if (result == WriteResult::Failed) {
                        return 255;
                    }
                    won += result == WriteResult::Written ? 1 : 0;
                }
                return won;
            }));
        }
        int won = 0;
        for (const pid_t child : children) {
            const int code = exitCode(child);
            QVERIFY(code >= 0 && code <= names);
            won += code;
        }
        QCOMPARE(won, names);
        QCOMPARE(files().size(), names);
        for (int name = 0; name < names; ++name) {
            const QByteArray content = read(path(QByteArray::number(name).constData()));
            const int number = content.at(0) - 'a';
            QCOMPARE(content, QByteArray(1000 + number, static_cast<char>('a' + number)));
        }
    }

    void publish_neverShowsHalfAFile_whenTheProcessIsKilled()
    {
        const QByteArray first(largeSize, 'a');
        const QByteArray second(largeSize, 'b');
        for (int round = 0; round < 10; ++round) {
            const pid_t child = startProcess([&] {
                for (;;) {
                    for (const QByteArray& content : {first, second}) {
                        if (FilePublisher::publish(path("file"), content, ExistingFile::Replace) !=
                            WriteResult::Written) {
                            return 1;
                        }
                    }
                }
            });
            QTRY_VERIFY(QFile::exists(path("file")));
            QTest::qSleep(1 + 7 * round);
            QCOMPARE(::kill(child, SIGKILL), 0);
            QCOMPARE(exitCode(child), -1);
            const QByteArray content = read(path("file"));
            QVERIFY(content == first || content == second);
        }
    }
};

QTEST_GUILESS_MAIN(FilePublisherTest)
#include "FilePublisherTest.moc"
