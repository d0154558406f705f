#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/support/ShownText.h"
#include "tests/ui/widgets/NameForm.h"

#include <QAction>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

using testsupport::abc;
using testsupport::itemTexts;
using testsupport::ModalScript;
using testsupport::NameForm;

class ProfileSelectorMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renamedProfile_isListedAndStoredUnderItsNewName();
    void rename_isRefused_whenTheNameIsTaken();
    void copy_hasTheValuesOfTheForm_andANameOfItsOwn();
    void deletedProfile_isGone_andItsNeighbourIsSelected();
    void deletedProfile_stays_whenTheQuestionIsDenied();
    void onlyProfile_cannotBeDeleted();
    void menu_offersNothing_withoutAProfile();
    void nameLikeMarkup_isShownAsItIs_inEveryQuestion();
    void saving_isAskedAbout_whenTheNameIsThatOfAnotherProfile();
};

namespace {

QAction& action(NameForm& form, const char* name)
{
    auto* const menu = form.selector().findChild<QMenu*>();
    Q_EMIT menu->aboutToShow();
    auto* const found = menu->findChild<QAction*>(QLatin1String(name));
    if (found == nullptr) {
        qFatal("no action %s", name);
    }
    return *found;
}

void enter(ModalScript& script, const QString& name)
{
    script.expect<QInputDialog>([name](QInputDialog& dialog) {
        dialog.setTextValue(name);
        dialog.accept();
    });
}

void answer(ModalScript& script, QMessageBox::StandardButton button, QString* said = nullptr)
{
    script.expect<QMessageBox>([button, said](QMessageBox& box) {
        if (said != nullptr) {
            *said = testsupport::shownText(box.text());
        }
        box.button(button)->click();
    });
}

} // namespace

void ProfileSelectorMenuTest::renamedProfile_isListedAndStoredUnderItsNewName()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(1));
    const QString id = form.profile(1)->id();
    form.prefix().setText(QStringLiteral("entered"));
    ModalScript script;
    enter(script, QStringLiteral("  Bee "));
    action(form, "renameProfileAction").trigger();
    QVERIFY(script.isDone());
    QCOMPARE(itemTexts(form.combo()),
             QStringList({QStringLiteral("A"), QStringLiteral("Bee"), QStringLiteral("C")}));
    QCOMPARE(form.combo().currentText(), QStringLiteral("Bee"));
    QCOMPARE(form.profile(1)->id(), id);
    QCOMPARE(form.profile(1)->name(), QStringLiteral("Bee"));
    // The entered value is neither lost nor saved by this.
    QCOMPARE(form.prefix().text(), QStringLiteral("entered"));
    QCOMPARE(form.storedPrefixes().value(1), QStringLiteral("of B"));
}

void ProfileSelectorMenuTest::rename_isRefused_whenTheNameIsTaken()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(1));
    ModalScript script;
    enter(script, QStringLiteral("a"));
    answer(script, QMessageBox::Ok);
    action(form, "renameProfileAction").trigger();
    QVERIFY(script.isDone());
    QCOMPARE(itemTexts(form.combo()), abc());
}

void ProfileSelectorMenuTest::copy_hasTheValuesOfTheForm_andANameOfItsOwn()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(1));
    form.profile(1)->setFileOutputSuffix(QStringLiteral("kept"));
    form.prefix().setText(QStringLiteral("entered"));
    action(form, "duplicateProfileAction").trigger();
    QCOMPARE(form.combo().currentText(), QStringLiteral("B copy"));
    QCOMPARE(form.profile(3)->fileOutputPrefix(), QStringLiteral("entered"));
    QCOMPARE(form.profile(3)->fileOutputSuffix(), QStringLiteral("kept"));
    QCOMPARE(form.profile(1)->fileOutputPrefix(), QStringLiteral("of B"));
    QCOMPARE(form.prefix().text(), QStringLiteral("entered"));
    QCOMPARE(form.storedPrefixes().value(3), QStringLiteral("entered"));
    form.selector().loadProfile(form.profile(1));
    action(form, "duplicateProfileAction").trigger();
    QCOMPARE(form.combo().currentText(), QStringLiteral("B copy 2"));
}

void ProfileSelectorMenuTest::deletedProfile_isGone_andItsNeighbourIsSelected()
{
    NameForm form(abc());
    const QSignalSpy deleted(&form.selector(), &ProfileSelector::profileDeleted);
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    form.selector().loadProfile(form.profile(2));
    BaseProfile* const last = form.profile(2);
    ModalScript script;
    answer(script, QMessageBox::Yes);
    action(form, "deleteProfileAction").trigger();
    QVERIFY(script.isDone());
    QCOMPARE(testsupport::onlyProfile(deleted), last);
    QCOMPARE(selected.last().at(0).value<BaseProfile*>(), form.profile(1));
    QCOMPARE(itemTexts(form.combo()), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(form.prefix().text(), QStringLiteral("of B"));
    QCOMPARE(form.storedPrefixes().size(), 2);
}

void ProfileSelectorMenuTest::deletedProfile_stays_whenTheQuestionIsDenied()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    ModalScript script;
    answer(script, QMessageBox::No);
    action(form, "deleteProfileAction").trigger();
    QVERIFY(script.isDone());
    QCOMPARE(itemTexts(form.combo()), abc());
    QCOMPARE(form.manager().profiles().size(), 3);
}

void ProfileSelectorMenuTest::onlyProfile_cannotBeDeleted()
{
    NameForm form({QStringLiteral("A")});
    form.selector().loadProfile(form.profile(0));
    QVERIFY(!action(form, "deleteProfileAction").isEnabled());
    QVERIFY(action(form, "renameProfileAction").isEnabled());
}

void ProfileSelectorMenuTest::menu_offersNothing_withoutAProfile()
{
    NameForm form(abc());
    for (const char* const name :
         {"renameProfileAction", "duplicateProfileAction", "deleteProfileAction"}) {
        QVERIFY2(!action(form, name).isEnabled(), name);
    }
}

void ProfileSelectorMenuTest::nameLikeMarkup_isShownAsItIs_inEveryQuestion()
{
    const QString name = QStringLiteral("a<b>");
    NameForm form({QStringLiteral("A"), name});
    QString said;
    ModalScript script;
    form.selector().loadProfile(form.profile(0));
    enter(script, name);
    answer(script, QMessageBox::Ok, &said);
    action(form, "renameProfileAction").trigger();
    QVERIFY2(said.contains(name), qPrintable(said));
    form.combo().setEditText(name);
    answer(script, QMessageBox::No, &said);
    QVERIFY(!form.selector().maySave());
    QVERIFY2(said.contains(name), qPrintable(said));
    form.selector().loadProfile(form.profile(1));
    answer(script, QMessageBox::No, &said);
    action(form, "deleteProfileAction").trigger();
    QVERIFY2(said.contains(name), qPrintable(said));
    QVERIFY(script.isDone());
}

void ProfileSelectorMenuTest::saving_isAskedAbout_whenTheNameIsThatOfAnotherProfile()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    QVERIFY(form.selector().maySave());
    form.combo().setEditText(QStringLiteral("new"));
    QVERIFY(form.selector().maySave());
    form.combo().setEditText(QStringLiteral("b"));
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        ModalScript script;
        answer(script, button);
        QCOMPARE(form.selector().maySave(), button == QMessageBox::Yes);
        QVERIFY(script.isDone());
    }
}

QTEST_MAIN(ProfileSelectorMenuTest)
#include "ProfileSelectorMenuTest.moc"
