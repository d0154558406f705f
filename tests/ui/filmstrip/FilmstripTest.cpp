#include "ui/filmstrip/Filmstrip.h"

#include "tests/ui/filmstrip/Snapshots.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace testsupport;

class FilmstripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strip_isHidden_whileItIsEmpty();
    void click_choosesASnapshot();
    void clickWithControl_selectsMore_andChoosesNothing();
    void returnKey_choosesASnapshot();
    void deletion_isTakenBack_andMadeAgain();
    void saveAll_asksForTheUnsavedOnes();
    void savedSnapshot_isMarked();
};

namespace {

/// A shown strip of three snapshots, with their small pictures.
class Strip : public Filmstrip
{
public:
    Strip()
        : choices(this, &Filmstrip::chosen)
    {
        for (const double seconds : {1.0, 2.0, 3.0}) {
            ids.append(shelf().add(pictureAt(seconds), {}, QStringLiteral("Default")));
        }
        resize(700, sizeHint().height());
        show();
        const QModelIndex last = list().model()->index(2, 0);
        const auto isDrawn = [&] {
            return !last.data(SnapshotShelf::ThumbnailRole).value<QImage>().isNull();
        };
        if (!QTest::qWaitForWindowExposed(this) || !QTest::qWaitFor(isDrawn)) {
            qFatal("the strip is not shown");
        }
    }

    [[nodiscard]] QListView& list() const { return *findChild<QListView*>(); }

    void click(int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect area = list().visualRect(list().model()->index(row, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, modifiers, area.center());
    }

    QStringList ids;
    QSignalSpy choices;
};

} // namespace

void FilmstripTest::strip_isHidden_whileItIsEmpty()
{
    QWidget window;
    Filmstrip strip(&window);
    window.show();
    QVERIFY(!strip.isVisible());
    static_cast<void>(strip.shelf().add(pictureAt(1.0), {}, {}));
    QVERIFY(strip.isVisible());
    strip.setCurrent(strip.shelf().unsaved().first());
    strip.deleteSelected();
    QVERIFY(!strip.isVisible());
}

void FilmstripTest::click_choosesASnapshot()
{
    Strip strip;
    strip.click(1);
    QCOMPARE(strip.choices.size(), 1);
    QCOMPARE(strip.choices.first().first().toString(), strip.ids.at(1));
}

void FilmstripTest::clickWithControl_selectsMore_andChoosesNothing()
{
    Strip strip;
    strip.setCurrent(strip.ids.at(0));
    strip.click(2, Qt::ControlModifier);
    QCOMPARE(strip.selected().size(), 2);
    QCOMPARE(strip.choices.size(), 0);
}

void FilmstripTest::returnKey_choosesASnapshot()
{
    Strip strip;
    strip.setCurrent(strip.ids.at(0));
    QTest::keyClick(&strip.list(), Qt::Key_Right);
    QTest::keyClick(&strip.list(), Qt::Key_Return);
    QCOMPARE(strip.choices.size(), 1);
    QCOMPARE(strip.choices.first().first().toString(), strip.ids.at(1));
}

void FilmstripTest::deletion_isTakenBack_andMadeAgain()
{
    Strip strip;
    strip.setCurrent(strip.ids.at(0));
    strip.click(2, Qt::ControlModifier);
    strip.deleteSelected();
    QCOMPARE(strip.shelf().unsaved(), QStringList(strip.ids.at(1)));
    QVERIFY(strip.undoAction()->isEnabled());
    strip.undoAction()->trigger();
    QCOMPARE(strip.shelf().unsaved(), strip.ids);
    strip.redoAction()->trigger();
    QCOMPARE(strip.shelf().unsaved(), QStringList(strip.ids.at(1)));
    strip.undoAction()->trigger();
    QCOMPARE(strip.shelf().unsaved(), strip.ids);
}

void FilmstripTest::saveAll_asksForTheUnsavedOnes()
{
    Strip strip;
    strip.shelf().markSaved(strip.ids.at(1));
    QSignalSpy wanted(&strip, &Filmstrip::saveRequested);
    auto& button = *strip.findChild<QPushButton*>(QStringLiteral("saveAllButton"));
    const auto& label = *strip.findChild<QLabel*>(QStringLiteral("filmstripCountLabel"));
    QCOMPARE(label.text(), QStringLiteral("2 not saved"));
    button.click();
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().first().toStringList(),
             (QStringList{strip.ids.at(0), strip.ids.at(2)}));
    strip.shelf().markSaved(strip.ids.at(0));
    strip.shelf().markSaved(strip.ids.at(2));
    QCOMPARE(label.text(), QStringLiteral("All saved"));
    QVERIFY(!button.isEnabled());
}

void FilmstripTest::savedSnapshot_isMarked()
{
    Strip strip;
    const QRect area = strip.list().visualRect(strip.list().model()->index(1, 0));
    const auto drawn = [&] { return strip.list().viewport()->grab(area).toImage(); };
    const QImage before = drawn();
    strip.shelf().markSaved(strip.ids.at(1));
    QVERIFY(drawn() != before);
    const QModelIndex index = strip.list().model()->index(1, 0);
    QVERIFY(index.data(Qt::AccessibleTextRole).toString().endsWith(QStringLiteral(", saved")));
}

QTEST_MAIN(FilmstripTest)
#include "FilmstripTest.moc"
