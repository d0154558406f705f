#include "qtav/src/HevcLayers.h"
#include "qtav/src/StreamParameters.h"
#include "tests/qtav/Decoding.h"

#include <QTest>

using QtAV::hevcHasSubLayers;

class HevcLayersTest : public QObject
{
    Q_OBJECT

private slots:
    void subLayers_areSeen_inFilesThatHaveThem_data();
    void subLayers_areSeen_inFilesThatHaveThem();
    void subLayers_areSeen_inParameterSetsBetweenStartCodes();
    void damagedData_hasNone();
};

void HevcLayersTest::subLayers_areSeen_inFilesThatHaveThem_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("hasLayers");
    QTest::newRow("MP4 with") << QStringLiteral("hevc_temporal_layers.mp4") << true;
    QTest::newRow("MP4 without") << QStringLiteral("hevc_8bit.mp4") << false;
    QTest::newRow("transport stream without") << QStringLiteral("hevc.ts") << false;
}

void HevcLayersTest::subLayers_areSeen_inFilesThatHaveThem()
{
    QFETCH(QString, file);
    QFETCH(bool, hasLayers);
    decoding::Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    const AVCodecParameters& codec = *player.demuxer.videoCodecContext()->parameters()->codec;
    QVERIFY(codec.extradata_size > 0);
    QCOMPARE(hevcHasSubLayers(codec.extradata, codec.extradata_size), hasLayers);
}

void HevcLayersTest::subLayers_areSeen_inParameterSetsBetweenStartCodes()
{
    // A slice's header, then a sequence parameter set: 4 bits of id, 3 bits of layers less one.
    const auto stream = [](int layers) {
        QByteArray bytes = QByteArray::fromHex("00000001260155");
        bytes += QByteArray::fromHex("000001420100ff");
        bytes[12] = char((layers - 1) << 1 | 1);
        return bytes;
    };
    const auto has = [](const QByteArray& bytes) {
        return hevcHasSubLayers(reinterpret_cast<const uint8_t*>(bytes.constData()), bytes.size());
    };
    QVERIFY(!has(stream(1)));
    QVERIFY(has(stream(2)));
    QVERIFY(has(stream(7)));
}

void HevcLayersTest::damagedData_hasNone()
{
    QVERIFY(!hevcHasSubLayers(nullptr, 0));
    const QByteArray cut = QByteArray::fromHex("000001420103");
    for (int size = 0; size < cut.size(); ++size) {
        QVERIFY(!hevcHasSubLayers(reinterpret_cast<const uint8_t*>(cut.constData()), size));
    }
    const QByteArray record(22, '\x01');
    QVERIFY(!hevcHasSubLayers(reinterpret_cast<const uint8_t*>(record.constData()), record.size()));
}

QTEST_GUILESS_MAIN(HevcLayersTest)
#include "HevcLayersTest.moc"
