#pragma once

#include <QMenu>
#include <QString>

class QActionGroup;

/// The menu of languages. A choice is stored, and takes effect at the next start. User-interface
/// thread only.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Another language was chosen; the text, for people, says when it takes effect.
    void message(const QString& text);

private:
    void add(const QString& text, const QString& language);
    void choose(const QString& language);

    QActionGroup* m_group = nullptr; ///< made first
};
