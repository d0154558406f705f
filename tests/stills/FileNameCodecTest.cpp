#include "stills/FileNameCodec.h"

#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

using testsupport::TestDir;

class FileNameCodecTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void text_isReadAsUtf8_data();
    void text_isReadAsUtf8();
    void bytesThatAreNoText_becomeLoneSurrogates();
    void allBytes_comeBack();
    void folders_listNamesThatAreNoText();
};

void FileNameCodecTest::initTestCase()
{
    stills::FileNameCodec::install();
}

void FileNameCodecTest::text_isReadAsUtf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("film.mp4");
    QTest::newRow("umlauts") << QStringLiteral(u"Übergröße");
    QTest::newRow("kanji") << QStringLiteral(u"映像");
    QTest::newRow("beyond U+FFFF") << QStringLiteral(u"🎬.mp4");
    // The second half of these looks like an escaped byte.
    QTest::newRow("U+104FF") << QStringLiteral(u"\U000104ff\U00010480");
    QTest::newRow("empty") << QString();
}

void FileNameCodecTest::text_isReadAsUtf8()
{
    QFETCH(const QString, text);
    QCOMPARE(QFile::decodeName(text.toUtf8()), text);
    QCOMPARE(QFile::encodeName(text), text.toUtf8());
}

void FileNameCodecTest::bytesThatAreNoText_becomeLoneSurrogates()
{
    if (!stills::FileNameCodec::isWhole) {
        QSKIP("This version of Qt takes all names for UTF-8.");
    }
    const QString text = QFile::decodeName(QByteArray("a\xff"
                                                      "b\xc3"));
    QCOMPARE(text.size(), 4);
    QCOMPARE(text.at(1).unicode(), ushort(0xdcff));
    QCOMPARE(text.at(3).unicode(), ushort(0xdcc3));
}

void FileNameCodecTest::allBytes_comeBack()
{
    if (!stills::FileNameCodec::isWhole) {
        QSKIP("This version of Qt takes all names for UTF-8.");
    }
    // Invalid pairs of bytes, and sequences forbidden in UTF-8: overlong forms, surrogates, beyond
    // the last character.
    QList<QByteArray> names{"\xc0\x80",         "\xed\xa0\x80\xed\xb0\x80",
                            "\xf4\x90\x80\x80", "\xe0\x80\x80",
                            "\xf0\x9f\x8e",     "\xf8\x88\x80\x80\x80"};
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            names.append(QByteArray().append(char(first)).append(char(second)));
        }
    }
    for (const QByteArray& name : names) {
        QCOMPARE(QFile::encodeName(QFile::decodeName(name)), name);
    }
}

void FileNameCodecTest::folders_listNamesThatAreNoText()
{
    if (!stills::FileNameCodec::isWhole) {
        QSKIP("This version of Qt takes all names for UTF-8.");
    }
    const TestDir dir;
    const QString name = QFile::decodeName(QByteArray("bad\xff.mp4"));
    QFile file(dir.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(QFile::exists(dir.filePath(name)));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{name});
}

QTEST_GUILESS_MAIN(FileNameCodecTest)

#include "FileNameCodecTest.moc"
