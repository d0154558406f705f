#include "ui/boxer.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using boxer::Buttons;
using boxer::Selection;
using boxer::Style;

Q_DECLARE_METATYPE(Buttons)
Q_DECLARE_METATYPE(Selection)
Q_DECLARE_METATYPE(Style)

namespace {

using Action = std::function<void(QMessageBox& box)>;

/// Shows a box and performs the action once it is visible.
Selection showAnd(const Action& act, Style style, Buttons buttons)
{
    QTimer::singleShot(0, qApp, [&act] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY2(box != nullptr, "no message box is up");
        act(*box);
    });
    return boxer::show("Message <b>of</b>\n\ntw\xC3\xB6 lines", "Headline", style, buttons);
}

QPushButton* buttonNamed(const QMessageBox& box, const QString& text)
{
    const auto buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text() == text) {
            return qobject_cast<QPushButton*>(button);
        }
    }
    return nullptr;
}

Action press(const QString& text)
{
    return [text](QMessageBox& box) {
        if (QPushButton* button = buttonNamed(box, text)) {
            button->click();
            return;
        }
        box.reject();
        QFAIL(qPrintable(QStringLiteral("no button ") + text));
    };
}

} // namespace

/// The message box of the systems other than macOS.
class BoxerQtTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_areShownPlain();
    void style_choosesIcon_data();
    void style_choosesIcon();
    void button_givesItsSelection_data();
    void button_givesItsSelection();
    void buttons_firstIsDefault_data();
    void buttons_firstIsDefault();
    void anotherEnd_givesNone_data();
    void anotherEnd_givesNone();
    void escapeAndClosing_cancel_whereOneCan();
};

void BoxerQtTest::texts_areShownPlain()
{
    const auto look = [](QMessageBox& box) {
        const QString title = box.windowTitle();
        const QString headline = box.text();
        const QString message = box.informativeText();
        const Qt::TextFormat format = box.textFormat();
        box.reject();
        QCOMPARE(title, QStringLiteral("Headline"));
        QCOMPARE(headline, QStringLiteral("Headline"));
        QCOMPARE(message, QStringLiteral("Message <b>of</b>\n\ntw\u00F6 lines"));
        QCOMPARE(format, Qt::PlainText);
    };
    QCOMPARE(showAnd(look, Style::Info, Buttons::OK), Selection::None);
}

void BoxerQtTest::style_choosesIcon_data()
{
    QTest::addColumn<Style>("style");
    QTest::addColumn<int>("icon");
    QTest::newRow("info") << Style::Info << int(QMessageBox::Information);
    QTest::newRow("warning") << Style::Warning << int(QMessageBox::Warning);
    QTest::newRow("error") << Style::Error << int(QMessageBox::Critical);
    QTest::newRow("question") << Style::Question << int(QMessageBox::Warning);
    QTest::newRow("unknown") << static_cast<Style>(17) << int(QMessageBox::Information);
}

void BoxerQtTest::style_choosesIcon()
{
    QFETCH(Style, style);
    QFETCH(int, icon);
    int shown = -1;
    const auto look = [&shown](QMessageBox& box) {
        shown = box.icon();
        box.reject();
    };
    QCOMPARE(showAnd(look, style, Buttons::OK), Selection::None);
    QCOMPARE(shown, icon);
}

void BoxerQtTest::button_givesItsSelection_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<QString>("button");
    QTest::addColumn<Selection>("selection");
    QTest::newRow("OK") << Buttons::OK << QStringLiteral("OK") << Selection::OK;
    QTest::newRow("OKCancel, OK") << Buttons::OKCancel << QStringLiteral("OK") << Selection::OK;
    QTest::newRow("OKCancel, Cancel")
        << Buttons::OKCancel << QStringLiteral("Cancel") << Selection::Cancel;
    QTest::newRow("YesNo, Yes") << Buttons::YesNo << QStringLiteral("Yes") << Selection::Yes;
    QTest::newRow("YesNo, No") << Buttons::YesNo << QStringLiteral("No") << Selection::No;
    QTest::newRow("Quit") << Buttons::Quit << QStringLiteral("Quit") << Selection::Quit;
    QTest::newRow("unknown") << static_cast<Buttons>(17) << QStringLiteral("OK") << Selection::None;
}

void BoxerQtTest::button_givesItsSelection()
{
    QFETCH(Buttons, buttons);
    QFETCH(QString, button);
    QFETCH(Selection, selection);
    QCOMPARE(showAnd(press(button), Style::Info, buttons), selection);
}

void BoxerQtTest::buttons_firstIsDefault_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<QStringList>("texts");
    const QString ok = QStringLiteral("OK");
    QTest::newRow("OK") << Buttons::OK << QStringList{ok};
    QTest::newRow("OKCancel") << Buttons::OKCancel << QStringList{ok, QStringLiteral("Cancel")};
    QTest::newRow("YesNo") << Buttons::YesNo
                           << QStringList{QStringLiteral("Yes"), QStringLiteral("No")};
    QTest::newRow("Quit") << Buttons::Quit << QStringList{QStringLiteral("Quit")};
    QTest::newRow("unknown") << static_cast<Buttons>(17) << QStringList{ok};
}

void BoxerQtTest::buttons_firstIsDefault()
{
    QFETCH(Buttons, buttons);
    QFETCH(QStringList, texts);
    const auto look = [&texts](QMessageBox& box) {
        const int count = box.buttons().size();
        QStringList missing;
        for (const QString& text : qAsConst(texts)) {
            if (buttonNamed(box, text) == nullptr) {
                missing += text;
            }
        }
        const bool firstIsDefault =
            missing.isEmpty() && buttonNamed(box, texts.constFirst())->isDefault();
        box.reject();
        QCOMPARE(missing, QStringList());
        QCOMPARE(count, texts.size());
        QVERIFY(firstIsDefault);
    };
    QCOMPARE(showAnd(look, Style::Info, buttons), Selection::None);
}

void BoxerQtTest::anotherEnd_givesNone_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<bool>("byKey");
    for (const bool byKey : {false, true}) {
        const char* how = byKey ? "Escape" : "closed";
        QTest::addRow("OK, %s", how) << Buttons::OK << byKey;
        QTest::addRow("YesNo, %s", how) << Buttons::YesNo << byKey;
        QTest::addRow("Quit, %s", how) << Buttons::Quit << byKey;
    }
}

void BoxerQtTest::anotherEnd_givesNone()
{
    QFETCH(Buttons, buttons);
    QFETCH(bool, byKey);
    const auto end = [byKey](QMessageBox& box) {
        if (byKey) {
            QTest::keyClick(&box, Qt::Key_Escape);
        } else {
            box.close();
        }
    };
    QCOMPARE(showAnd(end, Style::Question, buttons), Selection::None);
}

void BoxerQtTest::escapeAndClosing_cancel_whereOneCan()
{
    const auto escape = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    QCOMPARE(showAnd(escape, Style::Info, Buttons::OKCancel), Selection::Cancel);
    const auto close = [](QMessageBox& box) { box.close(); };
    QCOMPARE(showAnd(close, Style::Info, Buttons::OKCancel), Selection::Cancel);
}

QTEST_MAIN(BoxerQtTest)
#include "BoxerQtTest.moc"
