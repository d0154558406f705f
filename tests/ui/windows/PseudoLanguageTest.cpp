#include "tests/ui/windows/AllWindows.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTranslator>

using namespace testsupport;

namespace {

/// Qt's own texts, as if its catalogue were in the same language.
class PseudoQt : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const QLatin1String name(context);
        const bool isOfQt =
            name.startsWith(QLatin1Char('Q')) && !name.startsWith(QLatin1String("QtAV"));
        return isOfQt ? QStringLiteral("«%1»").arg(QString::fromUtf8(text)) : QString();
    }
};

/// Whether a text is the same in all languages.
bool isExempt(const QString& text)
{
    static const QRegularExpression exempt(QStringLiteral(
        // numbers, times, signs, sizes and formats
        "\\A([^\\p{L}]*|f?[\\d.,:]+|\\.[a-z0-9]+|[^\\p{L}]*(JPEG|PNG)[^\\p{L}]*|.*\\dpt"
        // names of the product, of languages, of what the test itself made, of files
        "|Morvantile|English|العربية|Deutsch|Español( de España)?|Français|日本語|简体中文"
        "|.*\\bmine|MyVideo|.*\\.(mp4|mpeg|mov|jpeg|png)|.*/.*|[ab]"
        "|\\d+ . \\d+ · JPEG.*"
        // what no user sees: the title of a popup without a frame, and what a label holds until a
        // batch starts
        "|Form|TextLabel"
        // addresses
        "|morvantile\\.example|support@morvantile\\.example)\\z"));
    return exempt.match(text).hasMatch();
}

QString plain(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QStringList textsOf(const QWidget& widget)
{
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
                      widget.statusTip(), widget.whatsThis()};
    if (widget.isWindow()) {
        texts += widget.windowTitle();
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        texts += label->text();
    } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        texts += button->text();
    } else if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
        texts += box->title();
    } else if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < combo->count(); ++i) {
            texts += combo->itemText(i);
        }
    } else if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget)) {
        texts += edit->placeholderText();
    } else if (const auto* const bar = qobject_cast<const QProgressBar*>(&widget)) {
        texts += bar->format();
    } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts += tabs->tabText(i);
        }
    } else if (const auto* const table = qobject_cast<const QTableView*>(&widget)) {
        for (int i = 0; i < table->model()->columnCount(); ++i) {
            texts += table->model()->headerData(i, Qt::Horizontal).toString();
        }
    }
    return texts;
}

bool isTranslated(const QString& text)
{
    const QString shown = plain(text).trimmed();
    return shown.contains(QChar(0xab)) || isExempt(shown);
}

QStringList untranslatedIn(const QWidget& window)
{
    QStringList found;
    const auto check = [&](const QString& text, const QString& where) {
        if (!isTranslated(text)) {
            found += where + QStringLiteral(": ") + text;
        }
    };
    QList<const QWidget*> widgets{&window};
    const auto children = window.findChildren<QWidget*>();
    for (const QWidget* const child : children) {
        if (child->isVisibleTo(&window)) {
            widgets += child;
        }
    }
    for (const QWidget* const widget : qAsConst(widgets)) {
        const QStringList texts = textsOf(*widget);
        for (const QString& text : texts) {
            check(text, nameOf(*widget));
        }
    }
    const auto actions = window.findChildren<QAction*>();
    for (const QAction* const action : actions) {
        check(action->text(), action->objectName());
        check(action->toolTip(), action->objectName());
    }
    return found;
}

} // namespace

/// The program in a language that puts each text in brackets.
class PseudoLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void texts_areAllTranslated();

private:
    QTranslator m_ours;
    PseudoQt m_qt;
};

void PseudoLanguageTest::initTestCase()
{
    QVERIFY(m_ours.load(QStringLiteral(MORVANTILE_PSEUDO_LANGUAGE)));
    QVERIFY(QCoreApplication::installTranslator(&m_qt));
    QVERIFY(QCoreApplication::installTranslator(&m_ours));
}

void PseudoLanguageTest::texts_areAllTranslated()
{
    QStringList found;
    visitAllWindows([&](QWidget& window) {
        const QStringList here = untranslatedIn(window);
        for (const QString& text : here) {
            found += nameOf(window) + QStringLiteral(" / ") + text;
        }
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

QTEST_MAIN(PseudoLanguageTest)
#include "PseudoLanguageTest.moc"
