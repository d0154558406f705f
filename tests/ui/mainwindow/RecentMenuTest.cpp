#include "ui/mainwindow/RecentMenu.h"

#include "tests/support/TestDir.h"
#include "tests/ui/support/ShownText.h"
#include "ui/mainwindow/RecentFiles.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using testsupport::TestDir;

class RecentMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void videos_areOffered_theNewestFirst_andChosen();
    void nameLikeMarkup_isShownAsItIs();
    void videosThatAreGone_areNotOffered();
    void list_isCleared();
};

namespace {

/// A menu whose settings are in a folder of the case.
struct Menu
{
    explicit Menu(const TestDir& dir)
        : settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat)
    {}

    /// The texts when the menu opens.
    QStringList texts()
    {
        Q_EMIT menu.aboutToShow();
        QStringList texts;
        const QList<QAction*> actions = menu.actions();
        for (const QAction* const action : actions) {
            if (!action->isSeparator()) {
                texts.append(action->text());
            }
        }
        return texts;
    }

    QSettings settings;
    RecentMenu menu{settings, nullptr};
};

} // namespace

void RecentMenuTest::videos_areOffered_theNewestFirst_andChosen()
{
    const TestDir dir;
    const QString film = dir.makeFile(QStringLiteral("film.mp4"));
    const QString both = dir.makeFile(QStringLiteral("this & that.mp4"));
    Menu menu(dir);
    QVERIFY(!menu.menu.isEnabled());
    menu.menu.note(film);
    menu.menu.note(both);
    QVERIFY(menu.menu.isEnabled());
    QCOMPARE(menu.texts(), (QStringList{QStringLiteral("this && that.mp4"),
                                        QStringLiteral("film.mp4"), QStringLiteral("Clear List")}));
    QCOMPARE(menu.menu.actions().at(1)->toolTip(), QDir::toNativeSeparators(film));
    QSignalSpy chosen(&menu.menu, &RecentMenu::chosen);
    menu.menu.actions().at(0)->trigger();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toString(), both);
    // The next window offers them, too.
    QVERIFY(Menu(dir).menu.isEnabled());
}

void RecentMenuTest::nameLikeMarkup_isShownAsItIs()
{
    const TestDir dir;
    const QString film = dir.makeFile(QStringLiteral("a<b>.mp4"));
    Menu menu(dir);
    menu.menu.note(film);
    QCOMPARE(menu.texts().first(), QStringLiteral("a<b>.mp4"));
    QCOMPARE(testsupport::shownText(menu.menu.actions().first()->toolTip()), film);
}

void RecentMenuTest::videosThatAreGone_areNotOffered()
{
    const TestDir dir;
    const QString film = dir.makeFile(QStringLiteral("film.mp4"));
    Menu menu(dir);
    menu.menu.note(film);
    QVERIFY(QFile::remove(film));
    QCOMPARE(menu.texts().first(), QStringLiteral("None of them is there"));
    QVERIFY(!menu.menu.actions().first()->isEnabled());
    dir.makeFile(QStringLiteral("film.mp4"));
    QCOMPARE(menu.texts().first(), QStringLiteral("film.mp4"));
}

void RecentMenuTest::list_isCleared()
{
    const TestDir dir;
    Menu menu(dir);
    menu.menu.note(dir.makeFile(QStringLiteral("film.mp4")));
    static_cast<void>(menu.texts());
    menu.menu.actions().last()->trigger();
    QVERIFY(!menu.menu.isEnabled());
    QVERIFY(RecentFiles::in(menu.settings).isEmpty());
}

QTEST_MAIN(RecentMenuTest)
#include "RecentMenuTest.moc"
