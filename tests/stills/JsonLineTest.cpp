#include "stills/JsonLine.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using stills::JsonLine;

class JsonLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_comeInTheirOrder();
    void texts_areEscaped();
    void halvesOfCharacters_areEscaped();
};

void JsonLineTest::keys_comeInTheirOrder()
{
    const QByteArray line = JsonLine(QLatin1String("image"))
                                .add(QLatin1String("video"), QStringLiteral("film.mkv"))
                                .add(QLatin1String("asked_ms"), std::optional<qint64>(90000))
                                .add(QLatin1String("frame"), std::optional<qint64>())
                                .addTruth(QLatin1String("interrupted"), false)
                                .line();
    QCOMPARE(line, QByteArray("{\"type\":\"image\",\"video\":\"film.mkv\",\"asked_ms\":90000,"
                              "\"frame\":null,\"interrupted\":false}\n"));
}

void JsonLineTest::texts_areEscaped()
{
    const QString text = QStringLiteral(u"\"\\/\n\t\u0001\u007f ü 映像 🎬");
    const QByteArray line = JsonLine(QLatin1String("x")).add(QLatin1String("t"), text).line();
    QCOMPARE(line.count('\n'), 1);
    QVERIFY(!line.contains('\x01'));
    QCOMPARE(QJsonDocument::fromJson(line).object().value(QStringLiteral("t")).toString(), text);
}

void JsonLineTest::halvesOfCharacters_areEscaped()
{
    const QString text = QStringLiteral("a") + QChar(0xdcff);
    const QByteArray line = JsonLine(QLatin1String("x")).add(QLatin1String("t"), text).line();
    QVERIFY(line.contains("\"a\\udcff\""));
}

QTEST_APPLESS_MAIN(JsonLineTest)

#include "JsonLineTest.moc"
