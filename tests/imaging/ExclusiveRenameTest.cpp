#include "imaging/ExclusiveRename.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using ExclusiveRename::Outcome;

namespace {

using Way = Outcome (*)(const QByteArray&, const QByteArray&);

constexpr int rounds = 50;
constexpr int racers = 8;

struct NamedWay
{
    const char* name;
    Way way;
};

constexpr NamedWay ways[] = {
    {"first supported", ExclusiveRename::rename},
#ifdef Q_OS_LINUX
    {"by renaming", ExclusiveRename::byRenaming},
#endif
    {"by linking", ExclusiveRename::byLinking},
    {"by claiming", ExclusiveRename::byClaiming},
};

} // namespace

Q_DECLARE_METATYPE(Way)

class ExclusiveRenameTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QByteArray path(const QByteArray& name) const
    {
        return QFile::encodeName(m_folder->path()) + '/' + name;
    }
    [[nodiscard]] QByteArray made(const QByteArray& name, const QByteArray& content) const
    {
        QFile file(QFile::decodeName(path(name)));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(content);
        }
        return path(name);
    }
    [[nodiscard]] QByteArray content(const QByteArray& name) const
    {
        QFile file(QFile::decodeName(path(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    static void addWays()
    {
        QTest::addColumn<Way>("way");
        for (const NamedWay& named : ways) {
            QTest::newRow(named.name) << named.way;
        }
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder->setAutoRemove(!QTest::currentTestFailed()); }

    void rename_movesTheFile_whenTheNameIsFree_data() { addWays(); }
    void rename_movesTheFile_whenTheNameIsFree()
    {
        QFETCH(Way, way);
        QCOMPARE(way(made("old", "content"), path("new")), Outcome::Done);
        QCOMPARE(content("new"), QByteArray("content"));
        QVERIFY(!QFile::exists(QFile::decodeName(path("old"))));
    }

    void rename_keepsBoth_whenTheNameIsTaken_data() { addWays(); }
    void rename_keepsBoth_whenTheNameIsTaken()
    {
        QFETCH(Way, way);
        QCOMPARE(way(made("old", "content"), made("new", "other")), Outcome::NameTaken);
        QCOMPARE(content("new"), QByteArray("other"));
        QCOMPARE(content("old"), QByteArray("content"));
    }

    void rename_keepsADanglingLink_whenItHasTheName_data() { addWays(); }
    void rename_keepsADanglingLink_whenItHasTheName()
    {
        QFETCH(Way, way);
        QVERIFY(QFile::link(QStringLiteral("nowhere"), QFile::decodeName(path("new"))));
        QCOMPARE(way(made("old", "content"), path("new")), Outcome::NameTaken);
        QVERIFY(QFileInfo(QFile::decodeName(path("new"))).isSymLink());
    }

    void rename_fails_whenTheFolderIsMissing_data() { addWays(); }
    void rename_fails_whenTheFolderIsMissing()
    {
        QFETCH(Way, way);
        QCOMPARE(way(made("old", "content"), path("missing/new")), Outcome::Failed);
        QCOMPARE(content("old"), QByteArray("content"));
    }

    void rename_fails_whenTheFileIsMissing_data() { addWays(); }
    void rename_fails_whenTheFileIsMissing()
    {
        QFETCH(Way, way);
        QCOMPARE(way(path("missing"), path("new")), Outcome::Failed);
        QVERIFY(!QFile::exists(QFile::decodeName(path("new"))));
    }

    void rename_hasOneWinner_whenManyRace_data() { addWays(); }
    void rename_hasOneWinner_whenManyRace()
    {
        QFETCH(Way, way);
        for (int round = 0; round < rounds; ++round) {
            const QByteArray target = "new" + QByteArray::number(round);
            const QByteArray to = path(target);
            std::atomic<int> waiting{racers};
            std::atomic<int> winner{-1};
            std::atomic<int> winners{0};
            std::atomic<int> losers{0};
            std::vector<std::thread> threads;
            for (int racer = 0; racer < racers; ++racer) {
                const QByteArray name = "old" + QByteArray::number(racer);
                const QByteArray from = made(name, name);
                threads.emplace_back([&, from, to, racer] {
                    --waiting;
                    while (waiting > 0) {
                        std::this_thread::yield();
                    }
                    const Outcome outcome = way(from, to);
                    winners += outcome == Outcome::Done ? 1 : 0;
                    losers += outcome == Outcome::NameTaken ? 1 : 0;
                    if (outcome == Outcome::Done) {
                        winner = racer;
                    }
                });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
            QCOMPARE(winners.load(), 1);
            QCOMPARE(losers.load(), racers - 1);
            QCOMPARE(content(target), "old" + QByteArray::number(winner.load()));
        }
    }
};

QTEST_GUILESS_MAIN(ExclusiveRenameTest)
#include "ExclusiveRenameTest.moc"
