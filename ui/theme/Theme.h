#pragma once

#include "ui/theme/Colours.h"

#include <QObject>

#include <optional>

class QPushButton;
class QSettings;

/// How the program looks: style, palette and style sheet together, and the user's choice of them.
///
/// The choice is in the settings under "theme": "dark", "light" or "system", which follows the
/// desktop while the program runs. User-interface thread only.
class Theme : public QObject
{
    Q_OBJECT

public:
    enum class Choice { Dark, Light, System };

    /// That of the application, made when it is first asked for; it ends with the application.
    [[nodiscard]] static Theme& instance();

    /// What was chosen before; dark where nothing was.
    [[nodiscard]] static Choice storedIn(const QSettings& settings);
    static void store(QSettings& settings, Choice choice);

    /// Gives all windows, open ones too, the looks that were chosen.
    void apply(Choice choice);

    [[nodiscard]] Choice choice() const;
    /// What the choice comes to here, and now.
    [[nodiscard]] theme::Scheme scheme() const;

    /// Makes a button the one that its window is there for, which stands out in the accent colour,
    /// or an ordinary one again.
    static void setPrimary(QPushButton& button, bool isPrimary);
    [[nodiscard]] static bool isPrimary(const QPushButton& button);

Q_SIGNALS:
    /// Other looks are applied.
    void changed();

protected:
    /// Notices a palette that the desktop has given the application.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Theme(QObject* parent);

    void noteSystemPalette(const QPalette& palette);
    void applyLater();

    theme::Scheme m_paletteScheme; ///< of the system's palette, as Qt last told it
    theme::Scheme m_systemScheme;  ///< what the desktop asked for last, in one way or another
    Choice m_choice = Choice::Dark;
    std::optional<theme::Scheme> m_applied; ///< what the application's palette was made by last
};
