#pragma once

#include "ui/theme/Colours.h"

#include <QObject>

#include <optional>

class QPushButton;
class QSettings;

/// The appearance of the program: style, palette and style sheet, and the user's choice of theme.
///
/// The choice is stored in the settings under "theme": "dark", "light" or "system", which follows
/// the desktop while the program runs. User-interface thread only.
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
    /// The scheme that results from the choice now.
    [[nodiscard]] theme::Scheme scheme() const;

    /// Makes a button the window's primary one, which stands out in the accent colour, or an
    /// ordinary one again.
    static void setPrimary(QPushButton& button, bool isPrimary);
    [[nodiscard]] static bool isPrimary(const QPushButton& button);

Q_SIGNALS:
    /// Another theme has been applied.
    void changed();

protected:
    /// Notices a palette that the desktop has given the application.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Theme(QObject* parent);

    void noteSystemPalette(const QPalette& palette);
    void applyLater();

    theme::Scheme m_paletteScheme; ///< of the system's palette, as last reported by Qt
    theme::Scheme m_systemScheme;  ///< what the desktop last requested, in one way or another
    Choice m_choice = Choice::Dark;
    std::optional<theme::Scheme> m_applied; ///< what the application's palette was made by last
};
