#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;

/// Assigns mnemonic letters to menu entries, unique within a menu: for the menu bar at once, for a
/// menu whenever it opens. So entries that are added later or translated have letters, too. An
/// entry that has a letter of its own keeps it. User-interface thread only.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    /// Applies to the bar and all menus that it contains now, during the lifetime of the bar.
    static void giveTo(QMenuBar& bar);

    /// Returns the text with an unused letter marked, which is added to `taken`. Initial letters of
    /// words are preferred; without a mark if all are taken. A text in Chinese or Japanese, which
    /// keys cannot type, gets a letter in brackets after it, as is customary there.
    /// @param hint  Latin letters that suit such a text, the best one first
    [[nodiscard]] static QString marked(const QString& text, QSet<QChar>& taken,
                                        const QString& hint = {});

    /// The text without marks, for use outside menus.
    [[nodiscard]] static QString plain(const QString& text);

private:
    using QObject::QObject;

    void follow(QMenu& menu);
};
