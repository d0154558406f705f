#include "imaging/JpegSegments.h"

#include <QByteArray>
#include <QTest>

namespace {

/// The beginning of a file: JFIF's header with two more bytes than usual, then a table.
QByteArray jfif()
{
    QByteArray bytes("\xff\xd8\xff\xe0\x00\x12JFIF\0\x01\x01\x00\x00\x01\x00\x01\x00\x00##\xff\xdb",
                     24);
    return bytes.append("table");
}

} // namespace

class JpegSegmentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void segment_tellsItsLength()
    {
        QCOMPARE(JpegSegments::segment(1, QByteArray("Exif\0\0", 6), "abc"),
                 QByteArray("\xff\xe1\x00\x0b"
                            "Exif\0\0abc",
                            13));
    }

    void add_insertsAfterTheWholeHeader()
    {
        QByteArray bytes = jfif();
        QVERIFY(JpegSegments::add(bytes, "<new>"));
        QCOMPARE(bytes, jfif().replace("##", "##<new>"));
    }

    void add_insertsAtTheBeginning_ofAFileWithoutHeader()
    {
        QByteArray bytes("\xff\xd8\xff\xdb", 4);
        QVERIFY(JpegSegments::add(bytes, "<new>"));
        QCOMPARE(bytes, QByteArray("\xff\xd8<new>\xff\xdb", 9));
    }

    void add_changesNothing_thatIsNoJpeg()
    {
        // The last one ends within its header.
        for (const QByteArray& other :
             {QByteArray(), QByteArray("\xff"), QByteArray("\xff\xd8 and no marker"),
              QByteArray("\x89PNG and so on"), jfif().left(21)}) {
            QByteArray bytes = other;
            QVERIFY(!JpegSegments::add(bytes, "<new>"));
            QCOMPARE(bytes, other);
        }
    }

    void setResolution_replacesUnitAndNumbers()
    {
        QByteArray bytes = jfif();
        QVERIFY(JpegSegments::setResolution(bytes, 300, 70000));
        QCOMPARE(bytes.size(), jfif().size());
        QCOMPARE(bytes.mid(13, 5), QByteArray("\x01\x01\x2c\xff\xff", 5));
        QCOMPARE(bytes.mid(18), jfif().mid(18));
    }

    void setResolution_changesNothing_withoutHeader()
    {
        QByteArray bytes("\xff\xd8\xff\xdb and much more of that table");
        const QByteArray before = bytes;
        QVERIFY(!JpegSegments::setResolution(bytes, 96, 96));
        QCOMPARE(bytes, before);
    }

    void colorProfile_isSplit_andEmptyWhereItDoesNotFit()
    {
        const QByteArray profile(100000, 'p');
        const QByteArray segments = JpegSegments::colorProfile(profile);
        QCOMPARE(segments.count(QByteArray("ICC_PROFILE\0", 12)), 2);
        QCOMPARE(segments.count('p'), profile.size());
        QCOMPARE(segments.left(18), QByteArray("\xff\xe2\xff\xffICC_PROFILE\0\x01\x02", 18));
        QCOMPARE(JpegSegments::colorProfile(QByteArray(256 * 65519, 'p')), QByteArray());
    }
};

QTEST_APPLESS_MAIN(JpegSegmentsTest)
#include "JpegSegmentsTest.moc"
