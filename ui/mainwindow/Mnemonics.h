#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;

/// Gives the entries of menus letters to be chosen by, none twice in a menu: those of the bar at
/// once, those of a menu each time it opens. So entries that come later, and those in other
/// languages, have theirs too. An entry that has a letter of its own keeps it. User-interface
/// thread only.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    /// For the bar and all menus that are in it now, as long as the bar lives.
    static void giveTo(QMenuBar& bar);

    /// The text of an entry with a letter marked that is not taken yet, which is then taken. The
    /// first letters of words come first; without a mark where all are taken. A text in Chinese or
    /// Japanese, whose letters no key types, gets one in brackets behind it, as is usual there.
    /// @param hint  Latin letters that suit such a text, the best one first
    [[nodiscard]] static QString marked(const QString& text, QSet<QChar>& taken,
                                        const QString& hint = {});

    /// The text without marks, as it is read elsewhere than in a menu.
    [[nodiscard]] static QString plain(const QString& text);

private:
    using QObject::QObject;

    void follow(QMenu& menu);
};
