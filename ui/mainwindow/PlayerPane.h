#pragma once

#include <QIcon>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class ActionButton;
class Filmstrip;
class KeyTips;
class PlayerSteering;
class QAction;
class QMenu;
class QSettings;
class VideoZoom;
class VolumePopup;

namespace QtAV {
class AVPlayer;
class VideoOutput;
} // namespace QtAV

namespace Ui {
class PlayerPane;
}

/// The left pane of the window: the video, or a button that opens one, the slider, the time, the
/// buttons that move the video, and the one that takes a snapshot. The pane owns the player.
///
/// Its owner opens and closes videos, and connects the menus with its functions. Implemented in
/// PlayerPane.cpp and, for playing and seeking, PlayerPane_playback.cpp. User-interface thread
/// only.
class PlayerPane : public QWidget
{
    Q_OBJECT

public:
    /// Creates the video output as a child of the given object.
    using VideoOutputFactory = std::function<QtAV::VideoOutput*(QObject*)>;

    /// The actions of the menu that do the same as a control here.
    struct Actions
    {
        QAction& playPause;
        QAction& stepForward;
        QAction& stepBackward;
        QAction& skipForward;
        QAction& skipBackward;
        QAction& takeSnapshot;
        QAction& goToTime;
    };

    /// Has no player yet: only setupPlayer() may be called, and what concerns the looks.
    /// @param settings  of the recent files; must outlive the pane
    explicit PlayerPane(QSettings& settings, QWidget* parent = nullptr);
    ~PlayerPane() override;

    /// Creates the player; call it once.
    /// @param pictureBytes  the maximum memory of a decoded picture
    /// @return false if no video can be shown: then nothing can be opened
    [[nodiscard]] bool setupPlayer(const VideoOutputFactory& makeVideoOutput, qint64 pictureBytes);
    /// Creates the popup that controls the volume; call it once, before a video is opened.
    void setupVolumePopup();
    /// Deletes the video soon, when the application ends.
    void releaseVideo();

    [[nodiscard]] QtAV::AVPlayer& player() const { return *m_player; }
    [[nodiscard]] VideoZoom& zoom() const { return *m_zoom; }
    /// Null if no video can be shown.
    [[nodiscard]] PlayerSteering* steering() const { return m_steering; }
    /// Null before setupVolumePopup().
    [[nodiscard]] VolumePopup* volumePopup() const { return m_volumePopup; }
    [[nodiscard]] ActionButton& snapshotButton() const;

    /// Shows the filmstrip below the controls, and takes ownership.
    void addFilmstrip(Filmstrip& filmstrip);
    void setSpeedMenu(QMenu& menu);
    /// Shows the keys of the actions with the controls that do the same.
    void showKeys(KeyTips& tips, const Actions& actions);

    /// True if a video is open or being opened; it may still turn out to be unplayable.
    [[nodiscard]] bool isVideoLoaded() const { return !m_video.isEmpty(); }
    /// True if a video is open and playable.
    [[nodiscard]] bool isVideoShown() const;
    /// The path of the open video; empty without one.
    [[nodiscard]] const QString& video() const { return m_video; }

    /// Plays a video in place of the button; call showOpened() when everything else follows it.
    void open(const QString& path);
    void showOpened();
    void close();
    /// Enables or disables what needs a video.
    void setControlsEnabled(bool on);
    /// Offers the recent files, if no video is open.
    void showRecentFiles();

    /// Plays or pauses the video on screen; if there is none, requests one.
    void clickVideo();
    void pause();
    void playPause();
    void updatePlayButton();
    void updateSliderUnit();
    void updateSlider();
    void showDuration(qint64 ms);
    void showPosition();
    /// Seek to a value of the slider, or to its own; playback continues if it was running.
    void seekBySlider(int value);
    void seekBySlider();
    void skipBackward();
    void skipForward();
    /// Pauses and moves by `ms` milliseconds, negative for back, from the position of a pending
    /// seek: successive calls add up.
    void seekRelative(qint64 ms);
    void stepBackward();
    void stepForward();
    /// @param volume  0 to 100
    void setVolume(int volume);
    void showVolumePopup();

    /// The shown position as a text.
    [[nodiscard]] QString time() const;
    /// The position in words, for screen readers. The picture gets it as its description, too, for
    /// users who reach it later.
    [[nodiscard]] QString describePlace();
    void setSnapshotTimes(const QVector<qint64>& ms);
    /// Opens the field for typing a position.
    void typePosition();
    /// Makes the keys control the video.
    void takeKeyboard();

Q_SIGNALS:
    /// The user requests to choose a video, to open one, or to take a snapshot.
    void videoRequested();
    void fileChosen(const QString& path);
    void snapshotRequested();
    /// The open video cannot be played; another one is offered.
    void unplayable(const QString& reason);
    /// A message for the status bar.
    void message(const QString& text);

private:
    void connectPlayer();
    void connectControls();
    void alignControls();
    void setupSteering();
    void showOpenButton(const QString& text);
    void hideOpenButton();
    void noticeMediaStatus();
    void noticeBaseLayer();
    void noticeFailedRead(const QString& reason);
    void showSpeed(qreal speed);

    std::unique_ptr<Ui::PlayerPane> m_ui;
    QSettings& m_settings;
    QString m_video;
    QtAV::AVPlayer* m_player = nullptr;
    /// Deleted before the window when the application ends.
    QPointer<QtAV::VideoOutput> m_videoOutput;
    VideoZoom* m_zoom = nullptr;
    PlayerSteering* m_steering = nullptr;
    VolumePopup* m_volumePopup = nullptr;
    qint64 m_sliderUnit = 1000; ///< milliseconds per step of the slider
    QIcon m_playIcon;
    QIcon m_pauseIcon;
};
