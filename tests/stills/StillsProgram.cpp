#include "tests/stills/StillsProgram.h"

#include "tests/support/FrameNumber.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QThread>

#include <csignal>

QString stillsprogram::program()
{
    return QStringLiteral(MORVANTILE_STILLS);
}

QProcessEnvironment stillsprogram::environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES"}) {
        environment.remove(QString::fromLatin1(name));
    }
    return environment;
}

testsupport::ProgramResult stillsprogram::run(const QStringList& arguments)
{
    constexpr int limitMs = 300000;
    return testsupport::runProgram(program(), arguments, limitMs, environment());
}

testsupport::ProgramResult stillsprogram::runJson(const QStringList& arguments,
                                                  const QString& folder)
{
    return run(QStringList{QStringLiteral("--json"), QStringLiteral("-o"), folder} + arguments);
}

QList<QJsonObject> stillsprogram::objects(const QByteArray& output)
{
    QList<QJsonObject> found;
    for (const QByteArray& line : output.split('\n')) {
        if (line.isEmpty()) {
            continue;
        }
        const QJsonDocument document = QJsonDocument::fromJson(line);
        if (!document.isObject()) {
            qFatal("No JSON object: %s", line.constData());
        }
        found.append(document.object());
    }
    return found;
}

QList<QJsonObject> stillsprogram::objects(const QByteArray& output, const QString& type)
{
    QList<QJsonObject> found;
    for (const QJsonObject& object : objects(output)) {
        if (object.value(QStringLiteral("type")).toString() == type) {
            found.append(object);
        }
    }
    return found;
}

QStringList stillsprogram::filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

QStringList stillsprogram::words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QList<int> stillsprogram::numbersIn(const QString& folder)
{
    QList<int> numbers;
    for (const QString& name : filesIn(folder)) {
        const QImage image(QDir(folder).filePath(name));
        numbers.append(testsupport::frameNumber(image).value_or(-1));
    }
    return numbers;
}

stillsprogram::InterruptibleProcess::InterruptibleProcess(const QStringList& arguments)
{
    // Shells ignore this signal for background processes, and the program would inherit that.
    static_cast<void>(std::signal(SIGINT, SIG_DFL));
    setProcessEnvironment(stillsprogram::environment());
    start(stillsprogram::program(), arguments);
    if (!waitForStarted()) {
        qFatal("Cannot start %s: %s", qUtf8Printable(stillsprogram::program()),
               qUtf8Printable(errorString()));
    }
}

stillsprogram::InterruptibleProcess::~InterruptibleProcess()
{
    kill();
    waitForFinished();
}

bool stillsprogram::InterruptibleProcess::waitForFileIn(const QString& folder)
{
    constexpr qint64 patienceMs = 60000;
    QElapsedTimer clock;
    clock.start();
    while (filesIn(folder).isEmpty() && clock.elapsed() < patienceMs) {
        QThread::msleep(1);
    }
    return !filesIn(folder).isEmpty();
}
