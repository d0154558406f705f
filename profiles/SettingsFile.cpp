#include "profiles/SettingsFile.h"

#include "profiles/SettingsVariants.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

namespace {

/// Enough for more than a thousand profiles.
constexpr qint64 largestFile = qint64{16} * 1024 * 1024;
constexpr int mostNames = 1000;

/// The only control characters within a line are tabs; carriage returns come from other systems.
bool isText(const QByteArray& content)
{
    return std::all_of(content.cbegin(), content.cend(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 || c == '\n' || c == '\r' || c == '\t';
    });
}

/// True for a section, a key with its value, a comment, or an empty line.
bool isLine(const QByteArray& line)
{
    const QByteArray text = line.trimmed();
    const bool isSection = text.startsWith('[') && text.endsWith(']');
    return text.isEmpty() || text.startsWith(';') || text.startsWith('#') || isSection ||
           (!text.startsWith('[') && text.contains('='));
}

bool isSettings(const QByteArray& content)
{
    if (!isText(content)) {
        return false;
    }
    bool goesOn = false;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray& line : lines) {
        if (!goesOn && !isLine(line)) {
            return false;
        }
        goesOn = line.trimmed().endsWith('\\');
    }
    return true;
}

/// A value may declare a list of two thousand million entries: Qt allocates memory for them first,
/// and throws if there is none.
bool canBeParsed(const QString& path)
{
    try {
        static_cast<void>(QSettings(path, QSettings::IniFormat).allKeys());
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// A block of most file systems: an empty file can be made on a full disk, too.
constexpr int probeBytes = 4096;

QDir folderOfProfiles()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

/// Named without an object of settings, which would read it.
QString ownFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(QCoreApplication::organizationName() + QLatin1Char('/') +
                           QCoreApplication::applicationName() + QStringLiteral(".conf"));
}

/// The application's own settings file, and those of the profiles and of batch mode.
QStringList allFiles()
{
    QStringList files;
    const QDir folder = folderOfProfiles();
    const QStringList names =
        folder.entryList({QStringLiteral("*.ini")}, QDir::AllEntries | QDir::System, QDir::Name);
    for (const QString& name : names) {
        files += folder.filePath(name);
    }
    files += ownFile();
    return files;
}

QString unsavable(const QString& path, const QString& reason)
{
    return QCoreApplication::translate("SettingsFile",
                                       "Settings cannot be saved in %1 (%2). What you change is "
                                       "lost when the window closes.")
        .arg(QDir::toNativeSeparators(path), reason);
}

QString reasonOf(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

/// Why no file can be written in a folder, which is made if it is missing; empty where one can.
QString problemIn(const QString& folder)
{
    errno = 0;
    if (!QDir().mkpath(folder)) {
        return unsavable(folder, reasonOf(errno != 0 ? errno : ENOTDIR));
    }
    // As QSettings writes: beside the place, then renamed. Only flush() tells of a full disk, and
    // commit() does not.
    const QString name =
        QStringLiteral("/.morvantile-probe-%1").arg(QCoreApplication::applicationPid());
    QSaveFile probe(folder + name);
    if (!probe.open(QIODevice::WriteOnly) ||
        probe.write(QByteArray(probeBytes, ' ')) != probeBytes || !probe.flush() ||
        !probe.commit()) {
        return unsavable(folder, probe.errorString());
    }
    static_cast<void>(QFile::remove(probe.fileName()));
    return {};
}

} // namespace

bool SettingsFile::isDamaged(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return false;
    }
    if (!info.isFile() || info.size() > largestFile) {
        return true;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray content = file.read(largestFile + 1);
    return !isSettings(content) || !SettingsVariants::areHarmless(content) || !canBeParsed(path);
}

std::optional<SettingsFile::PutAside> SettingsFile::putAsideIfDamaged(const QString& path)
{
    if (!isDamaged(path)) {
        return {};
    }
    for (int number = 1; number <= mostNames; ++number) {
        const QString aside =
            path + QStringLiteral(".bad") + (number > 1 ? QString::number(number) : QString());
        // QFile::rename() never replaces a file.
        if (QFile::rename(path, aside)) {
            return PutAside{path, aside};
        }
    }
    return {};
}

QVector<SettingsFile::PutAside> SettingsFile::putDamagedAside()
{
    QVector<PutAside> damaged;
    const QStringList files = allFiles();
    for (const QString& file : files) {
        if (const auto aside = putAsideIfDamaged(file)) {
            damaged += *aside;
        }
    }
    return damaged;
}

QString SettingsFile::text(const PutAside& damaged)
{
    return QCoreApplication::translate("SettingsFile",
                                       "The settings in %1 cannot be read. They are kept as %2.")
        .arg(QDir::toNativeSeparators(damaged.path), QDir::toNativeSeparators(damaged.keptPath));
}

QString SettingsFile::writeProblem()
{
    const QFileInfo own(ownFile());
    if (own.exists() && !own.isWritable()) {
        return unsavable(own.filePath(), reasonOf(EACCES));
    }
    const QString problem = problemIn(own.absolutePath());
    return problem.isEmpty() ? problemIn(folderOfProfiles().absolutePath()) : problem;
}
