#include "stills/Help.h"
#include "stills/Completions.h"
#include "stills/OptionTable.h"

#include <QTest>

namespace {

QByteArray bytes(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

} // namespace

class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortHelp_fitsAScreen();
    void shortHelp_hasDefaultsAndExamples();
    void fullHelp_hasEveryOption_inNarrowLines();
    void manualPage_hasEveryOption();
    void completions_haveEveryOption();
};

void HelpTest::shortHelp_fitsAScreen()
{
    const QList<QByteArray> lines = bytes(stills::shortHelp()).split('\n');
    // The shell's prompt needs the line after the last one.
    QVERIFY(lines.size() <= 24);
    for (const QByteArray& line : lines) {
        QVERIFY2(line.size() < 80, line.constData());
    }
}

void HelpTest::shortHelp_hasDefaultsAndExamples()
{
    const QByteArray help = bytes(stills::shortHelp());
    QVERIFY(help.contains("default: 10"));
    QVERIFY(help.contains("stills film.mkv --at 1:02.5,75%,last"));
    QVERIFY(help.contains("--help-all"));
}

void HelpTest::fullHelp_hasEveryOption_inNarrowLines()
{
    const QByteArray help = bytes(stills::fullHelp());
    for (const stills::OptionEntry& entry : stills::optionTable()) {
        const bool isHidden = entry.section == stills::Section::Hidden;
        QCOMPARE(help.contains("  " + bytes(entry.usage(false)) + "\n"), !isHidden);
    }
    for (const QByteArray& line : help.split('\n')) {
        QVERIFY2(line.size() < 80, line.constData());
    }
}

void HelpTest::manualPage_hasEveryOption()
{
    const QByteArray page = bytes(stills::manualPage());
    QVERIFY(page.startsWith(".TH STILLS 1"));
    for (const stills::OptionEntry& entry : stills::optionTable()) {
        const QByteArray name = "\\fB" + bytes(entry.longName()).replace("-", "\\-") + "\\fR";
        QCOMPARE(page.contains(name), entry.section != stills::Section::Hidden);
    }
    for (const QByteArray& line : page.split('\n')) {
        QVERIFY2(line.size() <= 80, line.constData());
        // A full stop or an apostrophe at the start of a line is a command.
        QVERIFY2(!line.startsWith('\''), line.constData());
    }
}

void HelpTest::completions_haveEveryOption()
{
    const QByteArray bash = bytes(stills::bashCompletion());
    const QByteArray zsh = bytes(stills::zshCompletion());
    const QByteArray fish = bytes(stills::fishCompletion());
    for (const stills::OptionEntry& entry : stills::optionTable()) {
        const QByteArray name = bytes(entry.longName());
        const bool isShown = entry.section != stills::Section::Hidden;
        QCOMPARE(bash.contains(name), isShown);
        QCOMPARE(zsh.contains("'" + name) || zsh.contains("'*" + name), isShown);
        QCOMPARE(fish.contains(" -l " + name.mid(2) + " "), isShown);
    }
    QVERIFY(fish.contains("jpg jpeg png"));
}

QTEST_APPLESS_MAIN(HelpTest)

#include "HelpTest.moc"
