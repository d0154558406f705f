#pragma once

#include <QMenu>

class QSettings;

/// The menu in which people choose how the program looks. A choice is applied at once and stored.
/// User-interface thread only.
class ThemeMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param settings  must outlive it
    ThemeMenu(QSettings& settings, QWidget* parent);
};
