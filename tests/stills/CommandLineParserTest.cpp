#include "stills/CommandLineParser.h"

#include "stills/OptionTable.h"

#include <QTest>

using stills::CommandLine;
using stills::Options;
using Wants = stills::CommandLine::Wants;

namespace {

CommandLine parsed(const std::vector<std::string>& arguments)
{
    return stills::parseCommandLine(arguments);
}

/// The options of a valid call; after an invalid one, default options and a failed check.
Options optionsOf(const std::vector<std::string>& arguments)
{
    const CommandLine line = parsed(arguments);
    if (line.wants != Wants::Run) {
        qWarning("%s", line.text.c_str());
    }
    return line.options;
}

std::vector<std::string> words(const QByteArray& text)
{
    std::vector<std::string> result;
    for (const QByteArray& word : text.split(' ')) {
        result.push_back(word.toStdString());
    }
    return result;
}

} // namespace

class CommandLineParserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults_areTenPictures_besideTheVideo();
    void videos_mayStandAnywhere();
    void everythingBehindTheMark_isAVideo();
    void optionalValues_areTaken_withAnEqualsSignOnly();
    void best_takesANumber_andSkips();
    void positions_mayBeGiven_inSeveralOptions();
    void hyphen_isStandardOutput();
    void values_mayBeAttached();
    void wrongUsage_isOneLine_thatNamesTheMistake_data();
    void wrongUsage_isOneLine_thatNamesTheMistake();
    void like_needsNoVideo_andNoPositions();
    void everyOption_isUnderstood();
};

void CommandLineParserTest::defaults_areTenPictures_besideTheVideo()
{
    const Options options = optionsOf({"film.mkv"});
    QCOMPARE(options.videos, std::vector<std::string>{"film.mkv"});
    QVERIFY(options.positions.kind == FramePositions::Kind::Spread);
    QCOMPARE(options.positions.count, 10);
    QVERIFY(!options.folder);
    QVERIFY(!options.size);
    QVERIFY(!options.sheet);
    QVERIFY(options.makesPictures);
    QVERIFY(!options.failsFast);
    QVERIFY(options.existing == stills::Existing::NextName);
    QCOMPARE(options.shard.count, 1);
}

void CommandLineParserTest::videos_mayStandAnywhere()
{
    const Options options = optionsOf({"a", "--every", "5s", "b", "-o", "out", "c"});
    QCOMPARE(options.videos, (std::vector<std::string>{"a", "b", "c"}));
    QCOMPARE(options.positions.everyMs, std::int64_t(5000));
    QCOMPARE(*options.folder, std::string("out"));
}

void CommandLineParserTest::everythingBehindTheMark_isAVideo()
{
    const Options options = optionsOf({"a", "--", "-dash.mp4", "--every", "--", "[x]"});
    QCOMPARE(options.videos, (std::vector<std::string>{"a", "-dash.mp4", "--every", "--", "[x]"}));
}

void CommandLineParserTest::optionalValues_areTaken_withAnEqualsSignOnly()
{
    const Options scenes = optionsOf({"--scenes", "film.mkv"});
    QCOMPARE(scenes.videos, std::vector<std::string>{"film.mkv"});
    QCOMPARE(scenes.positions.sceneThreshold, 0.3);
    QCOMPARE(optionsOf({"--scenes=0.5", "film.mkv"}).positions.sceneThreshold, 0.5);
    const Options sheet = optionsOf({"--sheet", "film.mkv"});
    QCOMPARE(sheet.videos, std::vector<std::string>{"film.mkv"});
    QVERIFY(sheet.sheet && !sheet.makesPictures);
    QVERIFY(optionsOf({"--sheet", "--with-pictures", "a"}).makesPictures);
    const Options titled = optionsOf({"--sheet", "--sheet-title=", "a"});
    QCOMPARE(*titled.sheet->title, std::string());
}

void CommandLineParserTest::best_takesANumber_andSkips()
{
    const Options options = optionsOf({"--best", "7", "--skip-start", "5s", "film.mkv"});
    QVERIFY(options.positions.kind == FramePositions::Kind::Best);
    QCOMPARE(options.positions.count, 7);
    QCOMPARE(options.positions.front.value, 5000.0);
    QVERIFY(options.choosesPositions);
}

void CommandLineParserTest::positions_mayBeGiven_inSeveralOptions()
{
    const Options options = optionsOf({"--at", "1,2", "--at=75%", "-a", "last", "a"});
    QVERIFY(options.positions.kind == FramePositions::Kind::List);
    QCOMPARE(options.positions.list.size(), std::size_t(4));
    QCOMPARE(optionsOf({"--frames", "0,5", "--frames", "7-9", "a"}).positions.list.size(),
             std::size_t(5));
}

void CommandLineParserTest::hyphen_isStandardOutput()
{
    const Options options = optionsOf({"-o", "-", "a"});
    QVERIFY(options.writesToStandardOutput);
    QVERIFY(!options.folder);
    QCOMPARE(*optionsOf({"--files-from", "-"}).listFile, std::string("-"));
}

void CommandLineParserTest::values_mayBeAttached()
{
    QCOMPARE(optionsOf({"-c5", "a"}).positions.count, 5);
    QCOMPARE(optionsOf({"--count=5", "a"}).positions.count, 5);
    QCOMPARE(*optionsOf({"-o", "[a,b]", "a"}).folder, std::string("[a,b]"));
    QCOMPARE(*optionsOf({"--watermark=a=b", "a"}).watermark, std::string("a=b"));
}

void CommandLineParserTest::wrongUsage_isOneLine_thatNamesTheMistake_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("named");
    const auto row = [](const char* arguments, const char* named) {
        QTest::newRow(arguments) << QByteArray(arguments) << QByteArray(named);
    };
    row("--every 5s", "no video");
    row("--evry 5s a", "did you mean --every?");
    row("-x a", "'-x'");
    row("a --every", "--every needs a value");
    row("a -o", "-o needs a value");
    row("--every 5s --every 6s a", "--every is there 2 times");
    row("--every= a", "--every");
    row("--scenes= a", "--scenes=");
    row("--keyframes=5 a", "--keyframes takes no value");
    row("--every 5x a", "'5x'");
    row("--every 1,5 a", "'1,5'");
    row("--every 0 a", "--every");
    row("--every 0.5ms a", "'0.5ms'");
    row("--every --count 4", "'--count'");
    row("--at 1:75 a", "'1:75'");
    row("--at -5 a", "'-5'");
    row("--frames 7-5 a", "'7-5'");
    row("--scenes=2 a", "'2'");
    row("--count 0 a", "'0'");
    row("--count 1.5 a", "'1.5'");
    row("--count 5 --every 3 a", "--count and --every");
    row("--keyframes --scenes a", "--keyframes and --scenes");
    row("--at 5 --frames 3 a", "--at and --frames");
    row("--best 5 --scenes a", "--scenes and --best");
    row("--best 0 a", "'0'");
    row("--best five a", "'five'");
    row("--at 5 --skip-start 3 a", "--skip-start");
    row("--skip-start 50% --skip-end 50% a", "--skip-start");
    row("--size 10 a", "1920x1080");
    row("--enlarge a", "--size");
    row("--format gif a", "'gif'");
    row("--quality 101 a", "'101'");
    row("--filter sinc a", "lanczos");
    row("--metadata some a", "without-place");
    row("--like a.jpg --profile x", "--like and --profile");
    row("--like a.jpg --skip-end 3", "--skip-start");
    row("--hdr bright a", "'bright'");
    row("--deinterlace sometimes a", "'sometimes'");
    row("--names {foo} a", "{stem}");
    row("--names x --name-profile y a", "--names and --name-profile");
    row("--skip-existing --overwrite a", "--skip-existing and --overwrite");
    row("--columns 4 a", "--sheet");
    row("--with-pictures a", "--sheet");
    row("--sheet={time} a", "--sheet");
    row("--sheet --columns 0 a", "--columns");
    row("--sheet --sheet-times --no-sheet-times a", "--sheet-times");
    row("--shard 0/4 a", "count from 1");
    row("--shard 5/4 a", "'5/4'");
    row("--quiet --verbose a", "--quiet and --verbose");
    row("--fail-fast --keep-going a", "--fail-fast");
    row("--jobs 0 a", "--jobs");
    row("--memory 5 a", "--memory");
    row("--picture-memory 5 a", "--picture-memory");
    row("--position-timeout soon a", "--position-timeout");
    row("-o - --json a", "--json");
    row("-", "--files-from -");
    row("--print foo", "'foo'");
}

void CommandLineParserTest::wrongUsage_isOneLine_thatNamesTheMistake()
{
    QFETCH(const QByteArray, arguments);
    QFETCH(const QByteArray, named);
    const CommandLine line = parsed(words(arguments));
    QVERIFY(line.wants == Wants::Error);
    const QByteArray text = QByteArray::fromStdString(line.text);
    QVERIFY2(text.contains(named), text.constData());
    QVERIFY(!text.contains('\n'));
}

void CommandLineParserTest::like_needsNoVideo_andNoPositions()
{
    const Options options = optionsOf({"--like", "a.jpg"});
    QCOMPARE(*options.like, std::string("a.jpg"));
    QVERIFY(options.videos.empty());
    QVERIFY(!options.choosesPositions);
    QVERIFY(optionsOf({"--like", "a.jpg", "--at", "5"}).choosesPositions);
    QVERIFY(optionsOf({"--like", "a.jpg", "--scenes"}).choosesPositions);
}

void CommandLineParserTest::everyOption_isUnderstood()
{
    for (const stills::OptionEntry& entry : stills::optionTable()) {
        std::vector<std::string> arguments{entry.longName()};
        if (entry.takesValue() && !entry.valueIsOptional()) {
            arguments.emplace_back("1");
        }
        arguments.emplace_back("a");
        const CommandLine line = parsed(arguments);
        const QByteArray text = QByteArray::fromStdString(line.text);
        QVERIFY2(!text.contains("no option") && !text.contains("needs a value"), text.constData());
    }
}

QTEST_APPLESS_MAIN(CommandLineParserTest)

#include "CommandLineParserTest.moc"
