#include "app/RunningInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QtEndian>

#include <unistd.h>
#include <utility>

namespace {

constexpr int answerMs = 2000;

/// Longer requests do not come from this program.
constexpr qint64 longestRequestBytes = 1 << 20;

constexpr char accepted = 'y';
constexpr char refused = 'n';

/// Checks the owner, because another user may have put something into a shared folder.
bool isOwn(const QString& place)
{
    return QFileInfo(place).ownerId() == getuid();
}

/// A request consists of its length and the paths separated by NUL characters.
QByteArray requestFor(const QStringList& files)
{
    const QByteArray paths = files.join(QChar(u'\0')).toUtf8();
    QByteArray request(int(sizeof(quint32)), '\0');
    qToBigEndian(quint32(paths.size()), request.data());
    return request + paths;
}

bool isSomebodyListening(const QString& place)
{
    QLocalSocket socket;
    socket.connectToServer(place);
    return socket.waitForConnected(answerMs);
}

} // namespace

QString RunningInstance::meetingPlace()
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    const QString folder = runtime.isEmpty() ? QDir::tempPath() : QFile::decodeName(runtime);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArray::number(getuid()));
    hash.addData(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation).toUtf8());
    hash.addData(qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"));
    return QDir(folder).filePath(QStringLiteral("morvantile-") +
                                 QString::fromLatin1(hash.result().toHex().left(16)));
}

bool RunningInstance::passOn(const QStringList& files, const QString& place)
{
    if (!isOwn(place)) {
        return false;
    }
    QLocalSocket socket;
    socket.connectToServer(place);
    if (!socket.waitForConnected(answerMs)) {
        return false;
    }
    socket.write(requestFor(files));
    while (socket.bytesAvailable() == 0) {
        if (!socket.waitForReadyRead(answerMs)) {
            return false;
        }
    }
    char answer = refused;
    return socket.getChar(&answer) && answer == accepted;
}

RunningInstance::RunningInstance(Opener open, QObject* parent)
    : QObject(parent)
    , m_open(std::move(open))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &RunningInstance::welcome);
}

bool RunningInstance::listen(const QString& place)
{
    // Checked first, because listening would silently replace another program's socket.
    if (QFileInfo::exists(place)) {
        if (!isOwn(place) || isSomebodyListening(place) || !QLocalServer::removeServer(place)) {
            return false;
        }
    }
    return m_server.listen(place);
}

void RunningInstance::welcome()
{
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { answer(*socket); });
        // All data may already have arrived.
        answer(*socket);
    }
}

void RunningInstance::answer(QLocalSocket& socket)
{
    char head[sizeof(quint32)];
    if (socket.peek(head, sizeof head) < qint64(sizeof head)) {
        return;
    }
    const qint64 length = qFromBigEndian<quint32>(head);
    if (length > longestRequestBytes) {
        socket.abort();
        return;
    }
    if (socket.bytesAvailable() < qint64(sizeof head) + length) {
        return;
    }
    socket.skip(sizeof head);
    const QByteArray bytes = socket.read(length);
    const QString paths = QString::fromUtf8(bytes.constData(), bytes.size());
    const bool isAccepted = m_open(paths.isEmpty() ? QStringList() : paths.split(QChar(u'\0')));
    socket.putChar(isAccepted ? accepted : refused);
    socket.disconnectFromServer();
}
