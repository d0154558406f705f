#include "imaging/WriteFailure.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

QString causeOf(int error)
{
    return error != 0 ? QString::fromLocal8Bit(std::strerror(error))
                      : QCoreApplication::translate("imaging", "the picture cannot be encoded");
}

/// At least one byte: the system may have freed room since the failure.
qint64 missingBytes(const QString& path, qint64 bytes)
{
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    const qint64 available = disk.isValid() ? std::max<qint64>(0, disk.bytesAvailable()) : 0;
    return std::max<qint64>(1, bytes - available);
}

QString folderOf(const QString& path)
{
    return QFileInfo(path).absolutePath();
}

/// Whether the system refuses because of the folder. A file that exists may be protected itself, or
/// be a link into a folder that is.
bool isRefusedByFolder(int error, const QString& path)
{
    if (error != EACCES && error != EPERM) {
        return false;
    }
    const QFileInfo file(path);
    const bool isTaken = file.exists() || file.isSymLink();
    return !isTaken || !QFileInfo(folderOf(path)).isWritable();
}

} // namespace

WriteFailure WriteFailure::of(const QString& path, qint64 bytes, int error)
{
    WriteFailure failure{error, path, bytes};
    if (error == ENOSPC || error == EDQUOT) {
        failure.missing = missingBytes(path, bytes);
    }
    return failure;
}

bool WriteFailure::isOfFolder() const
{
    return error == EROFS || !QFileInfo(folderOf(path)).isDir() || isRefusedByFolder(error, path);
}

QString WriteFailure::text() const
{
    const QFileInfo folder(folderOf(path));
    if (isLackOfRoom()) {
        const QString size = QLocale::c().formattedDataSize(missing, 1, QLocale::DataSizeSIFormat);
        const QString reason =
            error == EDQUOT
                ? QCoreApplication::translate("imaging",
                                              "Your quota is used up: %1 are missing for %2")
                : QCoreApplication::translate("imaging", "The disk is full: %1 are missing for %2");
        return reason.arg(size, path);
    }
    if (!folder.isDir()) {
        return QCoreApplication::translate("imaging", "The folder is gone: %1")
            .arg(folder.filePath());
    }
    if (isRefusedByFolder(error, path)) {
        return QCoreApplication::translate("imaging", "The folder does not let you write: %1")
            .arg(folder.filePath());
    }
    if (error == EROFS) {
        return QCoreApplication::translate("imaging", "The disk is read-only: %1")
            .arg(folder.filePath());
    }
    return QCoreApplication::translate("imaging", "Cannot be written: %1 (%2)")
        .arg(path, causeOf(error));
}
