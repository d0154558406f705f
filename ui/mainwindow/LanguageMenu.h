#pragma once

#include <QMenu>
#include <QString>

class QActionGroup;

/// The languages to choose from. What is chosen is stored, and is in effect from the next start on.
/// User-interface thread only.
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Another language was chosen; the text, for people, says when it is in effect.
    void message(const QString& text);

private:
    void add(const QString& text, const QString& language);
    void choose(const QString& language);

    QActionGroup* m_group = nullptr; ///< made first
};
