#pragma once

#include "ui/theme/Colours.h"

#include <QObject>

class QPushButton;
class QSettings;

/// The appearance of the program: style, palette and style sheet, and the user's choice of theme.
///
/// The choice is stored in the settings under "theme": "dark", "light" or "system". User-interface
/// thread only.
class Theme : public QObject
{
    Q_OBJECT

public:
    enum class Choice { Dark, Light, System };

    /// The application's theme, created on first use; deleted with the application.
    [[nodiscard]] static Theme& instance();

    /// The stored choice; dark by default.
    [[nodiscard]] static Choice storedIn(const QSettings& settings);
    static void store(QSettings& settings, Choice choice);

    /// Applies the chosen theme to all windows, including open ones.
    void apply(Choice choice);

    [[nodiscard]] Choice choice() const;
    /// The scheme that results from the choice.
    [[nodiscard]] theme::Scheme scheme() const;

    /// Makes a button the window's primary one, which stands out in the accent colour, or an
    /// ordinary one again.
    static void setPrimary(QPushButton& button, bool isPrimary);
    [[nodiscard]] static bool isPrimary(const QPushButton& button);

Q_SIGNALS:
    /// Another theme has been applied.
    void changed();

private:
    explicit Theme(QObject* parent);

    theme::Scheme m_systemScheme; ///< determined before any theme was applied
    Choice m_choice = Choice::Dark;
    bool m_isApplied = false;
};
