#include "tests/support/ColourFormulas.h"

#include <QtAV/StoredColours.h>

#include <QTest>

#include <cmath>

using QtAV::StoredColours;
using testsupport::Rgb;
using Primaries = StoredColours::Primaries;
using Transfer = StoredColours::Transfer;

namespace {

bool isNear(double a, double b, double most)
{
    if (std::abs(a - b) <= most) {
        return true;
    }
    qWarning("%.6f instead of %.6f", a, b);
    return false;
}

testsupport::Primaries likewise(Primaries primaries)
{
    switch (primaries) {
    case Primaries::P3:
        return testsupport::Primaries::P3;
    case Primaries::Bt2020:
        return testsupport::Primaries::Bt2020;
    case Primaries::Standard:
        break;
    }
    return testsupport::Primaries::Standard;
}

/// Light in cd/m² with sRGB's primaries, as the standards read such values.
Rgb lightOf(const StoredColours& colours, const Rgb& values)
{
    Rgb nits{testsupport::nitsOfPq(values[0]), testsupport::nitsOfPq(values[1]),
             testsupport::nitsOfPq(values[2])};
    if (colours.transfer == Transfer::Hlg) {
        nits = testsupport::nitsOfHlg(values);
    }
    return testsupport::toStandardPrimaries(likewise(colours.primaries), nits);
}

} // namespace

/// Compares the meaning of high dynamic range values with the standards' formulas.
class StoredColoursTest : public QObject
{
    Q_OBJECT

private slots:
    void whiteOfStandardRange_hasTheReferencesValue();
    void colours_showAsBrightAsInStandardRange_data();
    void colours_showAsBrightAsInStandardRange();
    void lightOfGreys_followsTheStandards();
    void standardValues_stayAsTheyAre();
};

void StoredColoursTest::whiteOfStandardRange_hasTheReferencesValue()
{
    for (const double value : StoredColours{Transfer::Pq, Primaries::Bt2020}.valuesOf({1, 1, 1})) {
        QVERIFY(isNear(value, testsupport::pqOf(203.0), 1e-6));
    }
    // ITU-R BT.2408 calls it 75 %.
    for (const double value : StoredColours{Transfer::Hlg, Primaries::Bt2020}.valuesOf({1, 1, 1})) {
        QVERIFY(isNear(value, 0.75, 0.002));
    }
}

void StoredColoursTest::colours_showAsBrightAsInStandardRange_data()
{
    QTest::addColumn<int>("transfer");
    QTest::addColumn<int>("primaries");
    for (const Transfer transfer : {Transfer::Pq, Transfer::Hlg}) {
        for (const Primaries primaries : {Primaries::Standard, Primaries::P3, Primaries::Bt2020}) {
            // The formulas for HLG are those of BT.2100's own primaries.
            if (transfer == Transfer::Pq || primaries == Primaries::Bt2020) {
                QTest::addRow("%d %d", int(transfer), int(primaries))
                    << int(transfer) << int(primaries);
            }
        }
    }
}

void StoredColoursTest::colours_showAsBrightAsInStandardRange()
{
    QFETCH(const int, transfer);
    QFETCH(const int, primaries);
    const StoredColours colours{Transfer(transfer), Primaries(primaries)};
    for (const Rgb& rgb : {Rgb{1, 1, 1}, Rgb{0.5, 0.5, 0.5}, Rgb{1, 0, 0}, Rgb{0, 1, 0},
                           Rgb{0, 0, 1}, Rgb{0.2, 0.7, 0.4}, Rgb{0, 0, 0}}) {
        const Rgb light = lightOf(colours, colours.valuesOf(rgb));
        for (size_t i = 0; i < 3; ++i) {
            QVERIFY(isNear(light[i] / 203.0, testsupport::lightOfSrgb(rgb[i]), 0.002));
        }
    }
}

void StoredColoursTest::lightOfGreys_followsTheStandards()
{
    const StoredColours pq{Transfer::Pq, Primaries::Bt2020};
    const StoredColours hlg{Transfer::Hlg, Primaries::Bt2020};
    QCOMPARE(pq.brightestNits(), 10000.0);
    QCOMPARE(hlg.brightestNits(), 1000.0);
    for (int i = 0; i <= 20; ++i) {
        const double value = i / 20.0;
        QVERIFY(isNear(pq.lightOf(value), testsupport::nitsOfPq(value) / 10000.0, 1e-6));
        const Rgb nits = testsupport::nitsOfHlg({value, value, value});
        QVERIFY(isNear(hlg.lightOf(value), nits[0] / 1000.0, 1e-4));
    }
}

void StoredColoursTest::standardValues_stayAsTheyAre()
{
    const StoredColours standard;
    QVERIFY(!standard.isHdr());
    const Rgb rgb{0.1, 0.6, 0.9};
    const Rgb values = standard.valuesOf(rgb);
    for (size_t i = 0; i < 3; ++i) {
        QVERIFY(isNear(values[i], rgb[i], 1e-6));
    }
}

QTEST_APPLESS_MAIN(StoredColoursTest)
#include "StoredColoursTest.moc"
