#pragma once

#include <QObject>
#include <QString>

#include <iosfwd>

class BatchWorkerConfig;
class QCommandLineParser;
class QCoreApplication;

/// Runs one batch job from the command line's arguments, in the calling thread.
///
/// User-interface thread only. Watermarks take a QGuiApplication; widgets are not needed.
class CommandLineProcessor : public QObject
{
    Q_OBJECT

public:
    /// What became of the arguments.
    enum ArgumentsResult {
        JobRun = 0,
        ArgumentsWrong = 1,
        VersionWanted = 2,
        HelpWanted = 3,
    };

    using QObject::QObject;

    /// Runs the job that the arguments of `app` describe, and returns when it is done.
    ///
    /// Wrong arguments end the process with a message and the help on standard output, the version
    /// and help options with what they ask for; all with exit code 0. Only options that do not
    /// exist end it with another. A job's failures are not reported: it makes what it can.
    void processCommandLine(QCoreApplication& app);

    /// Sets `parser` up, and parses, checks and runs. Options that do not exist end the process.
    ///
    /// @param errorMessage  says what is wrong after ArgumentsWrong
    [[nodiscard]] ArgumentsResult
    processArguments(QCoreApplication& app, QCommandLineParser& parser, QString* errorMessage);

    /// Runs a job and returns when it is done. The job stays the caller's.
    void processBatch(BatchWorkerConfig* config);

private Q_SLOTS:
    /// Prints a status line to standard output.
    void threadStatusUpdate(QString status);
};

/// Runs the command line's job; see CommandLineProcessor::processCommandLine().
void processCommandLine(QCoreApplication& app);

/// Writes the text as UTF-8.
std::ostream& operator<<(std::ostream& stream, const QString& text);
