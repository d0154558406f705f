#include "ui/mainwindow/FileManager.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#if defined(Q_OS_MACOS)
#include <QProcess>
#elif defined(Q_OS_UNIX)
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#endif

namespace {

void openFolderOf(const QString& file)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(file).absolutePath()));
}

} // namespace

#if defined(Q_OS_MACOS)

void FileManager::show(const QString& file)
{
    if (!QProcess::startDetached(QStringLiteral("open"), {QStringLiteral("-R"), file})) {
        openFolderOf(file);
    }
}

#elif defined(Q_OS_UNIX)

void FileManager::show(const QString& file)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(file);
        return;
    }
    // A name that the file managers of all desktops provide.
    const QString name = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage request = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/freedesktop/FileManager1"), name, QStringLiteral("ShowItems"));
    request << QStringList(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded)) << QString();
    auto* const watcher =
        new QDBusPendingCallWatcher(bus.asyncCall(request), QCoreApplication::instance());
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, file] {
        if (QDBusPendingReply<>(*watcher).isError()) {
            openFolderOf(file);
        }
        watcher->deleteLater();
    });
}

#else

void FileManager::show(const QString& file)
{
    openFolderOf(file);
}

#endif
