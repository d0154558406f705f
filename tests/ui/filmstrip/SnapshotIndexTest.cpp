#include "ui/filmstrip/SnapshotIndex.h"

#include "tests/ui/filmstrip/Snapshots.h"

#include <QTest>

using testsupport::fullNote;

class SnapshotIndexTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everything_isThere_whenReadBack();
    void emptyList_isAList();
    void whatIsNoList_isRefusedAsAWhole_data();
    void whatIsNoList_isRefusedAsAWhole();
};

void SnapshotIndexTest::everything_isThere_whenReadBack()
{
    KeptSnapshot bare;
    bare.id = QStringLiteral("b-2");
    bare.takenAt = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    bare.isSaved = true;
    const KeptSnapshot full = fullNote(QStringLiteral("a-1"));
    const auto read = SnapshotIndex::fromJson(SnapshotIndex::toJson({full, bare}));
    QVERIFY(read);
    QCOMPARE(read->size(), 2);
    const KeptSnapshot& first = read->at(0);
    QCOMPARE(first.id, full.id);
    QCOMPARE(first.takenAt, full.takenAt);
    QCOMPARE(first.profileId, full.profileId);
    QCOMPARE(first.profileName, full.profileName);
    QVERIFY(first.colours == full.colours);
    QVERIFY(!first.isSaved);
    QCOMPARE(first.source.video, full.source.video);
    QCOMPARE(first.source.seconds, full.source.seconds);
    QCOMPARE(first.source.frameNumber, full.source.frameNumber);
    QCOMPARE(first.source.tickNumerator, full.source.tickNumerator);
    QCOMPARE(first.source.tickDenominator, full.source.tickDenominator);
    QCOMPARE(first.source.frameSize, full.source.frameSize);
    QCOMPARE(first.source.recording.make, full.source.recording.make);
    QCOMPARE(first.source.recording.model, full.source.recording.model);
    QCOMPARE(first.source.recording.author, full.source.recording.author);
    QCOMPARE(first.source.recording.start->time, full.source.recording.start->time);
    QCOMPARE(first.source.recording.start->time.offsetFromUtc(), 7200);
    QCOMPARE(first.source.recording.start->knowsZone, true);
    QCOMPARE(first.source.recording.place->latitude, 48.2085);
    QCOMPARE(first.source.recording.place->altitude, std::optional<double>(171.0));
    QVERIFY(read->at(1).isSaved);
    QVERIFY(!read->at(1).source.recording.start);
    QVERIFY(!read->at(1).source.recording.place);
    QVERIFY(!read->at(1).source.frameNumber);
}

void SnapshotIndexTest::emptyList_isAList()
{
    const auto read = SnapshotIndex::fromJson(SnapshotIndex::toJson({}));
    QVERIFY(read);
    QVERIFY(read->isEmpty());
}

void SnapshotIndexTest::whatIsNoList_isRefusedAsAWhole_data()
{
    QTest::addColumn<QByteArray>("json");
    const QByteArray good = SnapshotIndex::toJson({fullNote(QStringLiteral("a"))});
    const auto with = [&good](const QByteArray& before, const QByteArray& after) {
        QByteArray changed = good;
        return changed.replace(before, after);
    };
    QVERIFY(SnapshotIndex::fromJson(good));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << good.left(good.size() / 2);
    QTest::newRow("zeros") << QByteArray(good.size(), '\0');
    QTest::newRow("other version") << with("\"version\": 1", "\"version\": 2");
    QTest::newRow("no list") << with("\"snapshots\"", "\"other\"");
    QTest::newRow("no name") << with("\"id\": \"a\"", "\"id\": \"\"");
    QTest::newRow("way out of the folder") << with("\"id\": \"a\"", "\"id\": \"../a\"");
    QTest::newRow("no date") << with("\"takenAt\"", "\"taken\"");
    QTest::newRow("unknown colours") << with("\"transfer\": 2", "\"transfer\": 7");
}

void SnapshotIndexTest::whatIsNoList_isRefusedAsAWhole()
{
    QFETCH(QByteArray, json);
    QVERIFY(!SnapshotIndex::fromJson(json));
}

QTEST_GUILESS_MAIN(SnapshotIndexTest)
#include "SnapshotIndexTest.moc"
