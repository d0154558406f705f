#include "tests/ui/objcruntime/RecordingRuntime.h"
#include "ui/boxer.h"

#include <QTest>

using boxer::Buttons;
using boxer::Selection;
using boxer::Style;

Q_DECLARE_METATYPE(Buttons)
Q_DECLARE_METATYPE(Selection)
Q_DECLARE_METATYPE(Style)

namespace {

constexpr long firstButton = 1000;
constexpr long secondButton = 1001;

Selection showAndEndWith(long response, Style style, Buttons buttons)
{
    RecordingRuntime::reset(response);
    return boxer::show("Message", "Title", style, buttons);
}

/// The journal's lines with this prefix, without the prefix.
QStringList journalAfter(const QString& start)
{
    QStringList found;
    const auto lines = RecordingRuntime::journal();
    for (const QString& line : lines) {
        if (line.startsWith(start)) {
            found += line.mid(start.size());
        }
    }
    return found;
}

} // namespace

/// The message box of macOS, calling a fake runtime that keeps a journal.
class BoxerMacTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alert_getsItsMessagesInOrder();
    void texts_arriveByteForByte();
    void style_choosesAlertStyle_data();
    void style_choosesAlertStyle();
    void buttons_areAddedInOrder_data();
    void buttons_areAddedInOrder();
    void response_isMappedToSelection_data();
    void response_isMappedToSelection();
};

void BoxerMacTest::alert_getsItsMessagesInOrder()
{
    QCOMPARE(showAndEndWith(secondButton, Style::Info, Buttons::OKCancel), Selection::Cancel);
    const QStringList expected{
        QStringLiteral("push pool"),
        QStringLiteral("NSAlert alloc"),
        QStringLiteral("alert init"),
        QStringLiteral("NSString defaultCStringEncoding"),
        QStringLiteral("NSString stringWithCString:\"Title\" encoding:30"),
        QStringLiteral("alert setMessageText:\"Title\""),
        QStringLiteral("NSString defaultCStringEncoding"),
        QStringLiteral("NSString stringWithCString:\"Message\" encoding:30"),
        QStringLiteral("alert setInformativeText:\"Message\""),
        QStringLiteral("alert setAlertStyle:1"),
        QStringLiteral("NSString defaultCStringEncoding"),
        QStringLiteral("NSString stringWithCString:\"OK\" encoding:30"),
        QStringLiteral("alert addButtonWithTitle:\"OK\""),
        QStringLiteral("NSString defaultCStringEncoding"),
        QStringLiteral("NSString stringWithCString:\"Cancel\" encoding:30"),
        QStringLiteral("alert addButtonWithTitle:\"Cancel\""),
        QStringLiteral("alert window"),
        QStringLiteral("window setLevel:8"),
        QStringLiteral("alert runModal"),
        QStringLiteral("alert release"),
        QStringLiteral("pop pool"),
    };
    QCOMPARE(RecordingRuntime::journal(), expected);
}

void BoxerMacTest::texts_arriveByteForByte()
{
    RecordingRuntime::reset(firstButton);
    QCOMPARE(boxer::show("one\n\nt\xC3\xBCo", "", Style::Info, Buttons::OK), Selection::OK);
    QCOMPARE(journalAfter(QStringLiteral("alert setMessageText:")),
             QStringList{QStringLiteral("\"\"")});
    QCOMPARE(journalAfter(QStringLiteral("alert setInformativeText:")),
             QStringList{QStringLiteral("\"one\n\nt\u00FCo\"")});
}

void BoxerMacTest::style_choosesAlertStyle_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<QString>("alertStyle");
    QTest::newRow("info") << Style::Info << QStringLiteral("1");
    QTest::newRow("warning") << Style::Warning << QStringLiteral("0");
    QTest::newRow("error") << Style::Error << QStringLiteral("2");
    QTest::newRow("question") << Style::Question << QStringLiteral("0");
    QTest::newRow("unknown") << static_cast<Style>(17) << QStringLiteral("1");
}

void BoxerMacTest::style_choosesAlertStyle()
{
    QFETCH(Style, style);
    QFETCH(QString, alertStyle);
    QCOMPARE(showAndEndWith(firstButton, style, Buttons::OK), Selection::OK);
    QCOMPARE(journalAfter(QStringLiteral("alert setAlertStyle:")), QStringList{alertStyle});
}

void BoxerMacTest::buttons_areAddedInOrder_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<QStringList>("titles");
    const QString ok = QStringLiteral("\"OK\"");
    QTest::newRow("OK") << Buttons::OK << QStringList{ok};
    QTest::newRow("OKCancel") << Buttons::OKCancel << QStringList{ok, QStringLiteral("\"Cancel\"")};
    QTest::newRow("YesNo") << Buttons::YesNo
                           << QStringList{QStringLiteral("\"Yes\""), QStringLiteral("\"No\"")};
    QTest::newRow("Quit") << Buttons::Quit << QStringList{QStringLiteral("\"Quit\"")};
    QTest::newRow("unknown") << static_cast<Buttons>(17) << QStringList{ok};
}

void BoxerMacTest::buttons_areAddedInOrder()
{
    QFETCH(Buttons, buttons);
    QFETCH(QStringList, titles);
    RecordingRuntime::reset(firstButton);
    static_cast<void>(boxer::show("Message", "Title", Style::Info, buttons));
    QCOMPARE(journalAfter(QStringLiteral("alert addButtonWithTitle:")), titles);
}

void BoxerMacTest::response_isMappedToSelection_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<int>("response");
    QTest::addColumn<Selection>("selection");
    QTest::newRow("OK, first") << Buttons::OK << 1000 << Selection::OK;
    QTest::newRow("OK, second") << Buttons::OK << 1001 << Selection::None;
    QTest::newRow("OKCancel, first") << Buttons::OKCancel << 1000 << Selection::OK;
    QTest::newRow("OKCancel, second") << Buttons::OKCancel << 1001 << Selection::Cancel;
    QTest::newRow("OKCancel, third") << Buttons::OKCancel << 1002 << Selection::None;
    QTest::newRow("YesNo, first") << Buttons::YesNo << 1000 << Selection::Yes;
    QTest::newRow("YesNo, second") << Buttons::YesNo << 1001 << Selection::No;
    QTest::newRow("YesNo, stopped") << Buttons::YesNo << -1000 << Selection::None;
    QTest::newRow("YesNo, aborted") << Buttons::YesNo << -1001 << Selection::None;
    QTest::newRow("YesNo, zero") << Buttons::YesNo << 0 << Selection::None;
    QTest::newRow("Quit, first") << Buttons::Quit << 1000 << Selection::Quit;
    QTest::newRow("Quit, second") << Buttons::Quit << 1001 << Selection::None;
    QTest::newRow("unknown, first") << static_cast<Buttons>(17) << 1000 << Selection::None;
}

void BoxerMacTest::response_isMappedToSelection()
{
    QFETCH(Buttons, buttons);
    QFETCH(int, response);
    QFETCH(Selection, selection);
    QCOMPARE(showAndEndWith(response, Style::Info, buttons), selection);
}

QTEST_GUILESS_MAIN(BoxerMacTest)
#include "BoxerMacTest.moc"
