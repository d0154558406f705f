#include "imaging/FilePublisher.h"

#include "tests/imaging/Publishing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>
#include <utime.h>
#include <vector>

using publishing::exitCode;
using publishing::filesIn;
using publishing::read;
using publishing::startProcess;

namespace {

using Prepared = std::vector<std::shared_ptr<HiddenFile>>;

Prepared preparedFiles(const QString& folder, int count)
{
    Prepared files;
    for (int i = 0; i < count; ++i) {
        if (auto file = FilePublisher::prepare(folder, QByteArray::number(i))) {
            files.push_back(std::move(file));
        }
    }
    return files;
}

/// Makes all files in the folder a day old.
bool makeOld(const QString& folder)
{
    const std::time_t yesterday = std::time(nullptr) - 24 * 60 * 60;
    const utimbuf times{yesterday, yesterday};
    for (const QString& name : filesIn(folder)) {
        if (::utime(QFile::encodeName(QDir(folder).filePath(name)).constData(), &times) != 0) {
            return false;
        }
    }
    return true;
}

/// Limits the descriptors of this process; for processes of their own.
bool limitDescriptors(rlim_t count)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = count;
    return ::setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

} // namespace

class PreparedFilesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString folder() const { return m_folder->path(); }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    void cleanup() { m_folder->setAutoRemove(!QTest::currentTestFailed()); }

    void oldFiles_stay_whoeverSweeps()
    {
        const Prepared files = preparedFiles(folder(), 20);
        QCOMPARE(files.size(), std::size_t(20));
        QVERIFY(makeOld(folder()));
        QCOMPARE(FilePublisher::sweep(folder()), 0);
        QCOMPARE(exitCode(startProcess([this] { return FilePublisher::sweep(folder()); })), 0);
        for (std::size_t i = 0; i < files.size(); ++i) {
            const QString name = m_folder->filePath(QString::number(i));
            QCOMPARE(FilePublisher::publishPrepared(name, *files[i]), WriteResult::Written);
            QCOMPARE(read(name), QByteArray::number(static_cast<int>(i)));
        }
    }

    void oldFiles_go_whenTheirProcessWasKilled()
    {
        const pid_t child = startProcess([this] {
            const Prepared files = preparedFiles(folder(), 20);
            ::pause();
            return static_cast<int>(files.size());
        });
        QTRY_COMPARE(filesIn(folder()).size(), 20);
        QCOMPARE(::kill(child, SIGKILL), 0);
        QCOMPARE(exitCode(child), -1);
        QCOMPARE(FilePublisher::sweep(folder()), 0);
        QVERIFY(makeOld(folder()));
        QCOMPARE(FilePublisher::sweep(folder()), 20);
        QVERIFY(filesIn(folder()).isEmpty());
    }

    void prepare_isNull_beforeTheProcessRunsOutOfDescriptors_data()
    {
        QTest::addColumn<int>("limit");
        QTest::newRow("few") << 40;
        QTest::newRow("usual") << 1024;
    }
    void prepare_isNull_beforeTheProcessRunsOutOfDescriptors()
    {
        QFETCH(const int, limit);
        const pid_t child = startProcess([this, limit] {
            if (!limitDescriptors(static_cast<rlim_t>(limit))) {
                return 1;
            }
            const Prepared files = preparedFiles(folder(), limit);
            for (int i = 0; i < limit / 4; ++i) {
                if (::open("/dev/null", O_RDONLY | O_CLOEXEC) < 0) {
                    return 2;
                }
            }
            // What was refused leaves nothing behind.
            return filesIn(folder()).size() == static_cast<int>(files.size()) ? 0 : 3;
        });
        QCOMPARE(exitCode(child), 0);
    }

    void prepare_worksAgain_whenFilesHaveGone()
    {
        const pid_t child = startProcess([this] {
            if (!limitDescriptors(100)) {
                return 1;
            }
            Prepared files = preparedFiles(folder(), 100);
            const bool wasFull = !files.empty() && !FilePublisher::prepare(folder(), "more");
            files.clear();
            return wasFull && FilePublisher::prepare(folder(), "more") ? 0 : 2;
        });
        QCOMPARE(exitCode(child), 0);
        QVERIFY(filesIn(folder()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(PreparedFilesTest)
#include "PreparedFilesTest.moc"
