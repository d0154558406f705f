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

/// Announces events of the main window to screen readers: the messages of its status bar, and the
/// position of the video once it was moved and rests. User-interface thread only.
class SpokenEvents : public QObject
{
    Q_OBJECT

public:
    /// @param place  returns the position in words; called when it is announced
    SpokenEvents(QMainWindow& window, QtAV::AVPlayer& player, std::function<QString()> place);

    /// Announces an additional text.
    void tell(const QString& text);

private:
    void followPlayer();
    void tellPlace();

    QtAV::AVPlayer& m_player;
    const std::function<QString()> m_place;
    Announcer* const m_announcer; ///< a child of the window
    QTimer m_rest;
};
