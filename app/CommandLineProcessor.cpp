#include "app/CommandLineProcessor.h"

#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <iostream>

namespace {

struct OptionText
{
    QStringList names;
    const char* description;
    /// Null for a switch.
    const char* valueName;
};

/// All options, in the order of the help text. Scripts and manuals quote these texts, so they must
/// not change.
/// keep their wording.
const QList<OptionText>& optionTexts()
{
    // clang-format off
    static const QList<OptionText> texts{
        {{QStringLiteral("c"), QStringLiteral("count")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "The number of thumbnails/images to create from a video file. Use this or --ms."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "image count")},
        {{QStringLiteral("m"), QStringLiteral("ms")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "The number of milliseconds to skip each time to to create from a video file. Use this or --count"),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "milliseconds")},
        {{QStringLiteral("skipfront")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "How many milliseconds to ignore from the front of a video before processing."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "milliseconds")},
        {{QStringLiteral("skipback")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "How many milliseconds to ignore from the back of a video."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "milliseconds")},
        {{QStringLiteral("height")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Output image height."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "height")},
        {{QStringLiteral("width")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Output image width."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "width")},
        {{QStringLiteral("videoaspectratio")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "With this option the images will be resized within the height and width specified as maximum values, retaining aspect ratio of the source video."),
         nullptr},
        {{QStringLiteral("fileprefix")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Specifies a prefix to append to the image file names."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "prefix")},
        {{QStringLiteral("filename")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Specify the output file name instead of using the video file name for output."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "name")},
        {{QStringLiteral("filesuffix")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Specifies a suffix to append to the image file names."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "suffix")},
        {{QStringLiteral("filetype")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Specifies the file type of the output image. jpeg, jpg, png, bmp, tiff, tif."),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "type")},
        {{QStringLiteral("log")},
         QT_TRANSLATE_NOOP("CommandLineProcessor", "Logs any errors messages to the file specified"),
         QT_TRANSLATE_NOOP("CommandLineProcessor", "file name")},
    };
    // clang-format on
    return texts;
}

void setUpParser(QCommandLineParser& parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QStringLiteral("Morvantile Command line options"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("source"),
                                 CommandLineProcessor::tr("Video file to process."));
    parser.addPositionalArgument(QStringLiteral("destination"),
                                 CommandLineProcessor::tr("Destination directory."),
                                 QStringLiteral("[destination]"));
    for (const OptionText& text : optionTexts()) {
        const QString valueName =
            text.valueName == nullptr ? QString() : CommandLineProcessor::tr(text.valueName);
        parser.addOption({text.names, CommandLineProcessor::tr(text.description), valueName});
    }
}

/// Calls `set` with the option's value if the option was given.
template <typename Setter>
void ifText(const QCommandLineParser& parser, const QString& option, Setter set)
{
    if (parser.isSet(option)) {
        set(parser.value(option));
    }
}

/// Like above for a number. Invalid numbers count as 0, which the job corrects by its own rules.
template <typename Setter>
void ifNumber(const QCommandLineParser& parser, const QString& option, Setter set)
{
    ifText(parser, option, [&set](const QString& value) { set(value.toInt()); });
}

void applyInterval(const QCommandLineParser& parser, BatchWorkerConfig& config)
{
    ifNumber(parser, QStringLiteral("ms"), [&config](int milliseconds) {
        config.setIntervalType(BatchWorkerConfig::EveryMilliseconds);
        config.setIntervalMilliseconds(milliseconds);
    });
    ifNumber(parser, QStringLiteral("count"), [&config](int images) {
        config.setIntervalType(BatchWorkerConfig::SpreadImages);
        config.setIntervalImages(images);
    });
    ifNumber(parser, QStringLiteral("skipfront"),
             [&config](int milliseconds) { config.setSkipFront(milliseconds); });
    ifNumber(parser, QStringLiteral("skipback"),
             [&config](int milliseconds) { config.setSkipBack(milliseconds); });
}

void applySize(const QCommandLineParser& parser, ImageProfile& profile)
{
    ifNumber(parser, QStringLiteral("height"),
             [&profile](int height) { profile.setImageHeight(height); });
    ifNumber(parser, QStringLiteral("width"),
             [&profile](int width) { profile.setImageWidth(width); });
    if (parser.isSet(QStringLiteral("videoaspectratio"))) {
        profile.setMaintainAspectRatio(true);
    }
}

/// "filename" and "log" are accepted but have no effect.
void applyNaming(const QCommandLineParser& parser, FileNameProfile& profile)
{
    ifText(parser, QStringLiteral("fileprefix"),
           [&profile](const QString& prefix) { profile.setFileOutputPrefix(prefix); });
    ifText(parser, QStringLiteral("filesuffix"),
           [&profile](const QString& suffix) { profile.setFileOutputSuffix(suffix); });
    ifText(parser, QStringLiteral("filetype"),
           [&profile](const QString& type) { profile.setFileOutputType(type); });
}

/// Sets the job's video and folder; returns an error text if that fails.
QString applyArguments(const QStringList& arguments, BatchWorkerConfig& config)
{
    if (arguments.isEmpty()) {
        return CommandLineProcessor::tr("A file name is required");
    }
    config.setSource(arguments.at(0));
    const QFileInfo source(config.source());
    if (!source.exists()) {
        return CommandLineProcessor::tr("File not found: ") + source.filePath();
    }
    if (arguments.size() > 1) {
        const QString& destination = arguments.at(1);
        if (!QDir(destination).exists()) {
            return QStringLiteral("Output folder is incorrect or does not exist: ") + destination;
        }
        config.setOutputDir(QDir(destination));
    }
    return {};
}

} // namespace

void CommandLineProcessor::processCommandLine(QCoreApplication& app)
{
    QCommandLineParser parser;
    QString errorMessage;
    switch (processArguments(app, parser, &errorMessage)) {
    case JobRun:
        break;
    case ArgumentsWrong:
        std::cout << errorMessage << std::endl;
        parser.showHelp(0);
    case VersionWanted:
        parser.showVersion();
    case HelpWanted:
        parser.showHelp(0);
    }
}

CommandLineProcessor::ArgumentsResult
CommandLineProcessor::processArguments(QCoreApplication& app, QCommandLineParser& parser,
                                       QString* errorMessage)
{
    setUpParser(parser);
    parser.process(app);
    if (parser.isSet(QStringLiteral("version"))) {
        return VersionWanted;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return HelpWanted;
    }
    auto* const config = new BatchWorkerConfig(this);
    *errorMessage = applyArguments(parser.positionalArguments(), *config);
    if (!errorMessage->isEmpty()) {
        return ArgumentsWrong;
    }
    if (parser.isSet(QStringLiteral("count")) && parser.isSet(QStringLiteral("ms"))) {
        *errorMessage = QStringLiteral("Please only set count or milliseconds");
        return ArgumentsWrong;
    }
    applyInterval(parser, *config);
    applySize(parser, *config->imageProfile());
    applyNaming(parser, *config->filenameProfile());
    processBatch(config);
    return JobRun;
}

void CommandLineProcessor::processBatch(BatchWorkerConfig* config)
{
    auto* const worker = new BatchWorker(this);
    worker->setConfig(config);
    worker->run();
}

void CommandLineProcessor::threadStatusUpdate(QString status)
{
    std::cout << status << std::endl;
}

void processCommandLine(QCoreApplication& app)
{
    CommandLineProcessor processor;
    processor.processCommandLine(app);
}

std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << text.toStdString();
}
