#include "tests/app/CommandLine.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Samples.h"

#include <QDir>
#include <QFile>

QString commandline::program()
{
    return QStringLiteral(MORVANTILE_CLI);
}

QProcessEnvironment commandline::environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES"}) {
        environment.remove(QString::fromLatin1(name));
    }
    return environment;
}

testsupport::ProgramResult commandline::run(const QStringList& arguments)
{
    return testsupport::runProgram(program(), arguments, 120000, environment());
}

QString commandline::copySample(const QString& sample, const QString& folder, const QString& name)
{
    QString copy = QDir(folder).filePath(name.isEmpty() ? sample : name);
    if (!QFile::copy(testsupport::samplePath(sample), copy)) {
        qFatal("Cannot copy the sample to %s", qUtf8Printable(copy));
    }
    return copy;
}

QStringList commandline::imagesIn(const QString& folder)
{
    QStringList images;
    const QStringList videos{QStringLiteral("mp4"), QStringLiteral("ts"), QStringLiteral("mkv"),
                             QStringLiteral("mov"), QStringLiteral("avi")};
    for (const QFileInfo& file :
         QDir(folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (!videos.contains(file.suffix())) {
            images.append(file.fileName());
        }
    }
    return images;
}

QList<int> commandline::numbersIn(const QString& folder)
{
    QList<int> numbers;
    for (const QString& name : imagesIn(folder)) {
        const QImage image(QDir(folder).filePath(name));
        numbers.append(testsupport::frameNumber(image).value_or(-1));
    }
    return numbers;
}
