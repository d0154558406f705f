#include "app/RunningInstance.h"

#include "tests/support/TestDir.h"

#include <QFile>
#include <QLocalSocket>
#include <QTest>

#include <future>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using testsupport::TestDir;

class RunningInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_reachTheOneThatListens();
    void programWithoutFiles_isAnswered_too();
    void passingOn_fails_whenNobodyListens();
    void passingOn_fails_whenTheOtherRefuses();
    void second_doesNotListen_whileTheFirstDoes();
    void leftovers_ofAKilledProgram_areReplaced();
    void nonsense_isIgnored_andTheNextRequestIsServed();
};

namespace {

/// Passes the files on like another program, while this one's event loop runs.
bool passOn(const QStringList& files, const QString& place)
{
    auto passed =
        std::async(std::launch::async, [&] { return RunningInstance::passOn(files, place); });
    while (passed.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready) {
        QCoreApplication::processEvents();
    }
    return passed.get();
}

/// A socket that was bound and never removed.
bool leaveSocketAt(const QString& place)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(place).constData(), sizeof address.sun_path);
    const bool isBound =
        bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(descriptor);
    return isBound;
}

} // namespace

void RunningInstanceTest::files_reachTheOneThatListens()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    QStringList opened;
    RunningInstance instance([&opened](const QStringList& files) {
        opened = files;
        return true;
    });
    QVERIFY(instance.listen(place));
    const QStringList files{QStringLiteral("/a b\n.mp4"), QStringLiteral("/\u30d3.mp4")};
    QVERIFY(passOn(files, place));
    QCOMPARE(opened, files);
    const QStringList many =
        QStringLiteral("/a/long/path/to/a/file.mp4,").repeated(5000).split(QLatin1Char(','));
    QVERIFY(passOn(many, place));
    QCOMPARE(opened, many);
}

void RunningInstanceTest::programWithoutFiles_isAnswered_too()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    QList<QStringList> asked;
    RunningInstance instance([&asked](const QStringList& files) {
        asked.append(files);
        return true;
    });
    QVERIFY(instance.listen(place));
    QVERIFY(passOn({}, place));
    QCOMPARE(asked, QList<QStringList>{QStringList()});
}

void RunningInstanceTest::passingOn_fails_whenNobodyListens()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    QVERIFY(!passOn({QStringLiteral("/a")}, place));
    QVERIFY(leaveSocketAt(place));
    QVERIFY(!passOn({QStringLiteral("/a")}, place));
}

void RunningInstanceTest::passingOn_fails_whenTheOtherRefuses()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    RunningInstance instance([](const QStringList&) { return false; });
    QVERIFY(instance.listen(place));
    QVERIFY(!passOn({QStringLiteral("/a")}, place));
}

void RunningInstanceTest::second_doesNotListen_whileTheFirstDoes()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    int opened = 0;
    RunningInstance first([&opened](const QStringList&) { return ++opened > 0; });
    QVERIFY(first.listen(place));
    RunningInstance second([](const QStringList&) { return false; });
    QVERIFY(!second.listen(place));
    QVERIFY(passOn({QStringLiteral("/a")}, place));
    QCOMPARE(opened, 1);
}

void RunningInstanceTest::leftovers_ofAKilledProgram_areReplaced()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    QVERIFY(leaveSocketAt(place));
    {
        RunningInstance instance([](const QStringList&) { return true; });
        QVERIFY(instance.listen(place));
        QVERIFY(passOn({QStringLiteral("/a")}, place));
        QVERIFY(QFile::exists(place));
    }
    QVERIFY(!QFile::exists(place));
}

void RunningInstanceTest::nonsense_isIgnored_andTheNextRequestIsServed()
{
    const TestDir dir;
    const QString place = dir.filePath(QStringLiteral("s"));
    int opened = 0;
    RunningInstance instance([&opened](const QStringList&) { return ++opened > 0; });
    QVERIFY(instance.listen(place));
    QLocalSocket socket;
    socket.connectToServer(place);
    QVERIFY(socket.waitForConnected());
    socket.write(QByteArray(4 << 20, '\x7f'));
    QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(opened, 0);
    QVERIFY(passOn({QStringLiteral("/a")}, place));
    QCOMPARE(opened, 1);
}

QTEST_GUILESS_MAIN(RunningInstanceTest)
#include "RunningInstanceTest.moc"
