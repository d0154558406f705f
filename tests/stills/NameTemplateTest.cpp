#include "stills/NameTemplate.h"

#include <QTest>

using stills::NameFields;
using stills::NameTemplate;

namespace {

NameFields someFields()
{
    NameFields fields;
    fields.stem = "my.holiday";
    fields.number = 7;
    fields.frame = 123;
    fields.timeMs = 3723500;
    fields.width = 1920;
    fields.height = 1080;
    return fields;
}

std::string nameOf(const std::string& text, const NameFields& fields = someFields(),
                   int counter = 1)
{
    const auto parsed = NameTemplate::parse(text);
    return parsed.isGood() ? parsed.value->fileName(fields, "jpg", counter) : parsed.error;
}

} // namespace

class NameTemplateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_areFilledIn_data();
    void fields_areFilledIn();
    void template_isRefused_data();
    void template_isRefused();
    void times_sortRight();
    void counter_standsBehindTheName();
    void tail_standsBehindTheStem_orAtTheEnd();
    void names_stayInTheFolder_data();
    void names_stayInTheFolder();
    void longStems_areCut_soThatTheRestStays();
    void longTexts_areCut_betweenCharacters();
    void bytesThatAreNoText_areKept();
};

void NameTemplateTest::fields_areFilledIn_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char* text, const char* name) {
        QTest::newRow(text) << QByteArray(text) << QByteArray(name);
    };
    row("{stem}-{time}", "my.holiday-01.02.03.500.jpg");
    row("{number}", "7.jpg");
    row("{number:4}_{frame:6}", "0007_000123.jpg");
    row("{width}x{height}", "1920x1080.jpg");
    row("{{{stem}}}", "{my.holiday}.jpg");
    row("a b", "a b.jpg");
}

void NameTemplateTest::fields_areFilledIn()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, name);
    QCOMPARE(QByteArray::fromStdString(nameOf(text.toStdString())), name);
}

void NameTemplateTest::template_isRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text :
         {"", "{", "}", "{stem", "stem}", "{}", "{foo}", "{Stem}", "{number:}", "{number:0}",
          "{number:99}", "{stem:4}", "{time:3}", "{number:-1}", "a}b"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void NameTemplateTest::template_isRefused()
{
    QFETCH(const QByteArray, text);
    const auto parsed = NameTemplate::parse(text.toStdString());
    QVERIFY(!parsed.isGood());
    QVERIFY(!parsed.error.empty());
}

void NameTemplateTest::times_sortRight()
{
    QCOMPARE(stills::timeForNames(0), std::string("00.00.00.000"));
    QVERIFY(stills::timeForNames(9999) < stills::timeForNames(10000));
    QVERIFY(stills::timeForNames(59999) < stills::timeForNames(60000));
    QVERIFY(stills::timeForNames(3599999) < stills::timeForNames(3600000));
    QCOMPARE(stills::timeForNames(360000000), std::string("100.00.00.000"));
}

void NameTemplateTest::counter_standsBehindTheName()
{
    QCOMPARE(nameOf("{stem}", someFields(), 2), std::string("my.holiday-2.jpg"));
}

void NameTemplateTest::tail_standsBehindTheStem_orAtTheEnd()
{
    NameFields fields = someFields();
    fields.tail = "-2";
    QCOMPARE(nameOf("{stem}-{number}", fields), std::string("my.holiday-2-7.jpg"));
    QCOMPARE(nameOf("{number}", fields), std::string("7-2.jpg"));
}

void NameTemplateTest::names_stayInTheFolder_data()
{
    QTest::addColumn<QByteArray>("stem");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char* what, const QByteArray& stem, const char* name) {
        QTest::newRow(what) << stem << QByteArray(name);
    };
    row("parent", "..", "__.jpg");
    row("path", "../../etc/passwd", "__.._.._etc_passwd.jpg");
    row("absolute", "/etc/x", "_etc_x.jpg");
    row("backslash", "..\\x", "___x.jpg");
    row("hidden", ".hidden", "_hidden.jpg");
    row("control",
        QByteArray("a\n\x1b\x7f\x00"
                   "b",
                   6),
        "a____b.jpg");
    row("empty", "", "_.jpg");
}

void NameTemplateTest::names_stayInTheFolder()
{
    QFETCH(const QByteArray, stem);
    QFETCH(const QByteArray, name);
    NameFields fields = someFields();
    fields.stem = stem.toStdString();
    const QByteArray result = QByteArray::fromStdString(nameOf("{stem}", fields));
    QVERIFY(!result.contains('/'));
    QVERIFY(!result.startsWith('.'));
    if (QByteArray(QTest::currentDataTag()) != "path") {
        QCOMPARE(result, name);
    }
}

void NameTemplateTest::longStems_areCut_soThatTheRestStays()
{
    NameFields fields = someFields();
    for (const char* const letter : {"a", "\xc3\xbc", "\xe6\x98\xa0", "\xf0\x9f\x8e\xac"}) {
        fields.stem.clear();
        while (fields.stem.size() < 300) {
            fields.stem += letter;
        }
        const std::string name = nameOf("{stem}-{time}", fields);
        QVERIFY(name.size() <= 255 - 10);
        QVERIFY(name.size() > 255 - 10 - 4);
        QVERIFY(QByteArray::fromStdString(name).endsWith("-01.02.03.500.jpg"));
        const QString text = QString::fromStdString(name);
        QVERIFY(!text.contains(QChar::ReplacementCharacter));
    }
}

void NameTemplateTest::longTexts_areCut_betweenCharacters()
{
    const std::string name = nameOf(std::string(400, 'x'));
    QVERIFY(name.size() <= 255);
    QCOMPARE(name.substr(name.size() - 4), std::string(".jpg"));
    QCOMPARE(stills::cutBetweenCharacters("a\xc3\xbc", 2), std::string("a"));
    QCOMPARE(stills::cutBetweenCharacters("a\xc3\xbc", 3), std::string("a\xc3\xbc"));
    QCOMPARE(stills::cutBetweenCharacters("\x80\x80\x80\x80\x80", 4).size(), std::size_t(4));
}

void NameTemplateTest::bytesThatAreNoText_areKept()
{
    NameFields fields = someFields();
    fields.stem = "a\xff\xfe";
    QCOMPARE(nameOf("{stem}", fields), std::string("a\xff\xfe.jpg"));
}

QTEST_APPLESS_MAIN(NameTemplateTest)

#include "NameTemplateTest.moc"
