#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QLocalSocket;

/// Lets a program pass what it is started with to the window that runs already.
///
/// Both sides meet at a socket that belongs to the user, the settings and the display. The first
/// window listens; a program that is started without videos brings it to the front. User-interface
/// thread only, but for passOn().
class RunningInstance : public QObject
{
    Q_OBJECT

public:
    /// Where the sides meet in this session. Only the user can connect there.
    [[nodiscard]] static QString meetingPlace();

    /// Asks the program that listens at the place to open the files, absolute paths, or to come to
    /// the front where there are none. False when
    /// no program listens, when it refuses, and when no answer comes within two seconds; blocks
    /// until then. From any thread.
    [[nodiscard]] static bool passOn(const QStringList& files, const QString& place);

    /// Opens files, or shows its window where there are none, and says so, or returns false where
    /// it cannot at the moment: the other program then opens them itself. It is called from within
    /// the event loop and should return at once.
    using Opener = std::function<bool(const QStringList& files)>;

    explicit RunningInstance(Opener open, QObject* parent = nullptr);

    /// Listens at the place. False when another program does already, or the place cannot be used.
    /// What a program that was killed left there is replaced.
    [[nodiscard]] bool listen(const QString& place);

private:
    void welcome();
    void answer(QLocalSocket& socket);

    QLocalServer m_server;
    const Opener m_open;
};
