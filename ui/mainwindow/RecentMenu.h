#pragma once

#include <QMenu>
#include <QString>

class QSettings;

/// The menu of the videos that were opened last: those that are there, by their names, and a way to
/// forget them all. Disabled while none is remembered. User-interface thread only.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param settings  where they are remembered; must outlive the menu
    RecentMenu(QSettings& settings, QWidget* parent);

    /// A video is opened: it comes first from now on.
    void note(const QString& path);

Q_SIGNALS:
    /// The user wants to open that video.
    void chosen(const QString& path);

private:
    void fill();
    void forgetAll();

    QSettings& m_settings;
};
