#pragma once

#include <QMenu>

class QSettings;

/// The menu of themes. A choice is applied at once and stored. User-interface thread only.
class ThemeMenu : public QMenu
{
    Q_OBJECT

public:
    /// @param settings  must outlive the menu
    ThemeMenu(QSettings& settings, QWidget* parent);
};
