#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QLocalSocket;

/// Lets a program pass its files to a window that is already running.
///
/// Both sides meet at a socket that is specific to the user, the settings and the display. The
/// first window listens; a program that is started without videos brings it to the front.
/// User-interface thread only, except for passOn().
class RunningInstance : public QObject
{
    Q_OBJECT

public:
    /// The path of the socket in this session. Only the user can connect to it.
    [[nodiscard]] static QString meetingPlace();

    /// Asks the listening program to open the files, given as absolute paths, or to come to the
    /// front if there are none. Returns false if no program listens, if it refuses, or if no answer
    /// comes within two seconds; blocks until then. From any thread.
    [[nodiscard]] static bool passOn(const QStringList& files, const QString& place);

    /// Opens files, or shows the window if there are none, and returns true. Returns false if that
    /// is impossible at the moment: the other program then opens them itself. It is called from the
    /// event loop and should return at once.
    using Opener = std::function<bool(const QStringList& files)>;

    explicit RunningInstance(Opener open, QObject* parent = nullptr);

    /// Starts listening. Returns false if another program already does, or the socket cannot be
    /// used. The socket of a killed program is replaced.
    [[nodiscard]] bool listen(const QString& place);

private:
    void welcome();
    void answer(QLocalSocket& socket);

    QLocalServer m_server;
    const Opener m_open;
};
