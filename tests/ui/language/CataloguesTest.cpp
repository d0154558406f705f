#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString source;
    QStringList translations; ///< one, or one for each plural form
    bool isFinished = true;
    bool isPlural = false;
};

void readTranslation(QXmlStreamReader& reader, Message& message)
{
    message.isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
    if (!message.isPlural) {
        message.translations = QStringList{reader.readElementText()};
        return;
    }
    while (reader.readNextStartElement()) {
        message.translations += reader.readElementText();
    }
}

Message readMessage(QXmlStreamReader& reader)
{
    Message message;
    message.isPlural = reader.attributes().hasAttribute(QLatin1String("numerus"));
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("source")) {
            message.source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            readTranslation(reader, message);
        } else {
            reader.skipCurrentElement();
        }
    }
    return message;
}

QVector<Message> messagesIn(const QString& language)
{
    QFile file(QDir(QStringLiteral(MORVANTILE_TRANSLATIONS))
                   .filePath(QStringLiteral("morvantile_%1.ts").arg(language)));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file.fileName()));
    }
    QVector<Message> messages;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("message")) {
            messages += readMessage(reader);
        }
    }
    return messages;
}

/// The placeholders of a text, such as %1 and %n, sorted.
QStringList placesIn(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%(?:L?\\d|n|p%)"));
    QStringList places;
    QRegularExpressionMatchIterator matches = place.globalMatch(text);
    while (matches.hasNext()) {
        places += matches.next().captured();
    }
    places.sort();
    return places;
}

QString edgesOf(const QString& text)
{
    const QString start = text.startsWith(QLatin1Char(' ')) ? QStringLiteral("space ") : QString();
    const QString end = text.endsWith(QLatin1Char(' ')) ? QStringLiteral(" space") : QString();
    const QString line = text.endsWith(QLatin1Char('\n')) ? QStringLiteral(" line") : QString();
    return start + end + line;
}

} // namespace

/// Checks that the catalogues are complete, and keep the placeholders of the texts.
class CataloguesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogue_isComplete_data() { addLanguages(); }
    void catalogue_isComplete();
    void catalogue_keepsPlaces_data() { addLanguages(); }
    void catalogue_keepsPlaces();
    void catalogues_haveTheSameTexts();

private:
    static void addLanguages();
};

void CataloguesTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("pluralForms");
    const QMap<QString, int> forms{{QStringLiteral("ar"), 6}, {QStringLiteral("de"), 2},
                                   {QStringLiteral("es"), 2}, {QStringLiteral("fr"), 2},
                                   {QStringLiteral("ja"), 1}, {QStringLiteral("zh_CN"), 1}};
    for (auto it = forms.cbegin(); it != forms.cend(); ++it) {
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
    }
}

void CataloguesTest::catalogue_isComplete()
{
    QFETCH(QString, language);
    QFETCH(int, pluralForms);
    const QVector<Message> messages = messagesIn(language);
    QVERIFY(messages.size() > 400);
    for (const Message& message : messages) {
        const QByteArray text = message.source.toUtf8();
        QVERIFY2(message.isFinished, text.constData());
        QVERIFY2(message.translations.size() == (message.isPlural ? pluralForms : 1),
                 text.constData());
        QVERIFY2(!message.translations.contains(QString()), text.constData());
    }
}

void CataloguesTest::catalogue_keepsPlaces()
{
    QFETCH(QString, language);
    const QVector<Message> messages = messagesIn(language);
    for (const Message& message : messages) {
        for (const QString& translation : message.translations) {
            const QByteArray both =
                (message.source + QStringLiteral(" -> ") + translation).toUtf8();
            QVERIFY2(placesIn(translation) == placesIn(message.source), both.constData());
            QVERIFY2(edgesOf(translation) == edgesOf(message.source), both.constData());
        }
    }
}

void CataloguesTest::catalogues_haveTheSameTexts()
{
    const auto sourcesOf = [](const QString& language) {
        QStringList sources;
        const QVector<Message> messages = messagesIn(language);
        for (const Message& message : messages) {
            sources += message.source;
        }
        return sources;
    };
    const QStringList expected = sourcesOf(QStringLiteral("de"));
    for (const char* const language : {"ar", "es", "fr", "ja", "zh_CN"}) {
        QCOMPARE(sourcesOf(QLatin1String(language)), expected);
    }
}

QTEST_GUILESS_MAIN(CataloguesTest)
#include "CataloguesTest.moc"
