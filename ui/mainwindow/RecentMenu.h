#pragma once

#include <QMenu>
#include <QString>

class QSettings;

/// The menu of recent videos: the existing ones by name, and an action that clears the list.
/// Disabled while the list is empty. User-interface thread only.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param settings  stores the list; must outlive the menu
    RecentMenu(QSettings& settings, QWidget* parent);

    /// Moves a video to the front of the list; call it when one is opened.
    void note(const QString& path);

Q_SIGNALS:
    /// The user requests to open that video.
    void chosen(const QString& path);

private:
    void fill();
    void forgetAll();

    QSettings& m_settings;
};
