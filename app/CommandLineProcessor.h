#pragma once

#include <QObject>
#include <QString>

#include <iosfwd>

class BatchWorkerConfig;
class QCommandLineParser;
class QCoreApplication;

/// Runs one batch job from the command line's arguments, in the calling thread.
///
/// User-interface thread only. Watermarks need a QGuiApplication; widgets are not needed.
class CommandLineProcessor : public QObject
{
    Q_OBJECT

public:
    /// The result of evaluating the arguments.
    enum ArgumentsResult {
        JobRun = 0,
        ArgumentsWrong = 1,
        VersionWanted = 2,
        HelpWanted = 3,
    };

    using QObject::QObject;

    /// Runs the job that the arguments of `app` describe, and returns when it is done.
    ///
    /// Wrong arguments end the process with a message and the help on standard output; the version
    /// and help options end it with their text. The exit code is 0 in all these cases, and
    /// different only for unknown options. A job's failures are not reported: it makes what it can.
    void processCommandLine(QCoreApplication& app);

    /// Sets `parser` up, then parses and checks the arguments and runs the job. Unknown options end
    /// the process.
    ///
    /// @param errorMessage  receives the reason for ArgumentsWrong
    [[nodiscard]] ArgumentsResult
    processArguments(QCoreApplication& app, QCommandLineParser& parser, QString* errorMessage);

    /// Runs a job and returns when it is done. The caller keeps ownership of the job.
    void processBatch(BatchWorkerConfig* config);

private Q_SLOTS:
    /// Prints a status line to standard output.
    void threadStatusUpdate(QString status);
};

/// Runs the command line's job; see CommandLineProcessor::processCommandLine().
void processCommandLine(QCoreApplication& app);

/// Writes the text as UTF-8.
std::ostream& operator<<(std::ostream& stream, const QString& text);
