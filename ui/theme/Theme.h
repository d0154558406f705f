#pragma once

#include "ui/theme/Colours.h"

#include <QObject>

class QPushButton;
class QSettings;

/// How the program looks: style, palette and style sheet together, and the user's choice of them.
///
/// The choice is in the settings under "theme": "dark", "light" or "system". User-interface thread
/// only.
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
    /// What the choice comes to here.
    [[nodiscard]] theme::Scheme scheme() const;

    /// Makes a button the one that its window is there for, which stands out in the accent colour,
    /// or an ordinary one again.
    static void setPrimary(QPushButton& button, bool isPrimary);
    [[nodiscard]] static bool isPrimary(const QPushButton& button);

Q_SIGNALS:
    /// Other looks are applied.
    void changed();

private:
    explicit Theme(QObject* parent);

    theme::Scheme m_systemScheme; ///< as it was before anything was applied
    Choice m_choice = Choice::Dark;
    bool m_isApplied = false;
};
