#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class Announcer;
class QMainWindow;

namespace QtAV {
class AVPlayer;
} // namespace QtAV

/// What the main window tells those who listen to a screen reader: what its status bar says, and
/// where the video stands once it was moved and rests. User-interface thread only.
class SpokenEvents : public QObject
{
    Q_OBJECT

public:
    /// @param place  the place in the video in words, asked for when it is told
    SpokenEvents(QMainWindow& window, QtAV::AVPlayer& player, std::function<QString()> place);

    /// Tells this as well.
    void tell(const QString& text);

private:
    void followPlayer();
    void tellPlace();

    QtAV::AVPlayer& m_player;
    const std::function<QString()> m_place;
    Announcer* const m_announcer; ///< a child of the window
    QTimer m_rest;
};
