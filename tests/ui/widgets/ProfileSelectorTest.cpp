#include "ui/widgets/ProfileSelector.h"

#include "tests/ui/widgets/NameForm.h"

using testsupport::abc;
using testsupport::itemTexts;
using testsupport::NameForm;
using testsupport::names;
using testsupport::onlyProfile;

namespace {

constexpr const char* emptyNameLine =
    "Name.length was 0. Show an error or don't let the user press the button here.";

} // namespace

class ProfileSelectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isAsLaidOut();
    void combo_hasAName_withoutSeeingIt();
    void loadProfiles_listsThemInOrder_andSelectsNone();
    void loadProfiles_keepsEarlierItems();
    void loadProfiles_keepsTypedName_andReportsNothing();
    void addProfile_appendsItsName_withoutIconOrData();
    void loadProfile_fillsForm_andReportsItOnce();
    void loadProfile_fillsFormTwice_whenSelectionChanges();
    void loadProfile_fillsFormAgain_withoutReport_whenSelectionStays();
    void loadProfile_restoresName_whenAnotherWasTyped();
    void loadProfile_selectsNothing_whenItIsNotListed();
    void loadProfile_leavesForm_whenNull();
    void picking_fillsForm_andReportsProfile();
    void picking_fillsNothing_whenNameIsEmpty();
    void picking_reportsOnce_whenProfileIsListedTwice();
    void deselecting_onlyLogs();
    void typing_isReported_andKeepsForm();
    void typing_isNotCompleted();
    void typedNameOfAnother_loadsNothing_onReturnOrLeaving();
    void currentListedProfile_ignoresLetterCase_data();
    void currentListedProfile_ignoresLetterCase();
    void currentListedProfile_isTheFirst_ofThoseThatMatch();
    void saveProfile_overwrites_whateverLetterCaseWasTyped();
    void saveProfile_makesNewProfile_forNewName();
    void saveProfile_makesFirstProfile();
    void saveProfile_keepsWhatWasEntered_forNewName();
    void saveProfile_makesOneProfile_whenSavedTwice();
    void saveProfile_makesNamelessProfile_whenNothingIsTyped();
    void saveProfile_doesNothing_withoutManager();
    void names_surviveSavingAndSelecting_data();
    void names_surviveSavingAndSelecting();
    void thousandProfiles_areListedAndSaved_withFewSteps();
};

void ProfileSelectorTest::form_isAsLaidOut()
{
    const ProfileSelector selector(nullptr);
    const auto* const combo = selector.findChild<QComboBox*>(QStringLiteral("profileComboBox"));
    QVERIFY(combo);
    QVERIFY(combo->isEditable());
    QCOMPARE(combo->insertPolicy(), QComboBox::NoInsert);
    QCOMPARE(combo->minimumSize(), QSize(96, 22));
    QCOMPARE(combo->lineEdit()->placeholderText(), QStringLiteral("[Type to Name Profile]"));
    QCOMPARE(combo->count(), 0);
}

void ProfileSelectorTest::combo_hasAName_withoutSeeingIt()
{
    const ProfileSelector selector(nullptr);
    QCOMPARE(selector.findChild<QComboBox*>()->accessibleName(), QStringLiteral("Profile"));
    QCOMPARE(selector.findChild<QLineEdit*>()->accessibleName(), QStringLiteral("Profile"));
    QCOMPARE(selector.focusProxy(), selector.findChild<QComboBox*>());
}

void ProfileSelectorTest::loadProfiles_listsThemInOrder_andSelectsNone()
{
    NameForm form(abc());
    QCOMPARE(itemTexts(form.combo()), abc());
    QCOMPARE(form.combo().currentIndex(), -1);
    QCOMPARE(form.combo().currentText(), QString());
    QCOMPARE(form.prefix().text(), QString());
}

void ProfileSelectorTest::loadProfiles_keepsEarlierItems()
{
    NameForm form(abc());
    form.selector().loadProfiles(&form.manager());
    QCOMPARE(itemTexts(form.combo()), abc() + abc());
}

void ProfileSelectorTest::loadProfiles_keepsTypedName_andReportsNothing()
{
    NameForm form({});
    form.addProfile(QStringLiteral("A"));
    form.typeName(QStringLiteral("mine"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy renamed(&form.selector(), &ProfileSelector::profileNameTextChanged);
    form.selector().loadProfiles(&form.manager());
    QCOMPARE(form.combo().count(), 1);
    QCOMPARE(form.combo().currentText(), QStringLiteral("mine"));
    QCOMPARE(selected.count(), 0);
    QCOMPARE(renamed.count(), 0);
}

void ProfileSelectorTest::addProfile_appendsItsName_withoutIconOrData()
{
    NameForm form(abc());
    FileNameProfile profile;
    profile.setName(QStringLiteral("D"));
    form.selector().addProfile(&profile);
    QCOMPARE(itemTexts(form.combo()), abc() + QStringList{QStringLiteral("D")});
    QVERIFY(form.combo().itemIcon(3).isNull());
    QVERIFY(!form.combo().itemData(3).isValid());
    form.selector().loadProfile(&profile);
    QCOMPARE(form.selector().currentListedProfile(), &profile);
    QCOMPARE(form.manager().profiles().size(), 3);
}

void ProfileSelectorTest::loadProfile_fillsForm_andReportsItOnce()
{
    NameForm form(abc());
    form.profile(1)->setFileOutputCounterPadZeros(true);
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy renamed(&form.selector(), &ProfileSelector::profileNameTextChanged);
    form.selector().loadProfile(form.profile(1));
    QCOMPARE(form.combo().currentIndex(), 1);
    QCOMPARE(form.combo().currentText(), QStringLiteral("B"));
    QCOMPARE(form.prefix().text(), QStringLiteral("of B"));
    QCOMPARE(form.type().currentText(), QStringLiteral("png"));
    QVERIFY(form.pad().isChecked());
    QCOMPARE(onlyProfile(selected), form.profile(1));
    QCOMPARE(names(renamed), QStringList{QStringLiteral("B")});
}

void ProfileSelectorTest::loadProfile_fillsFormTwice_whenSelectionChanges()
{
    NameForm form(abc());
    // The second call reverts changes made between the two.
    connect(&form.selector(), &ProfileSelector::profileSelected, &form.prefix(),
            [&form] { form.prefix().setText(form.prefix().text() + QStringLiteral(" seen")); });
    const QSignalSpy texts(&form.prefix(), &QLineEdit::textChanged);
    form.selector().loadProfile(form.profile(0));
    QCOMPARE(names(texts), (QStringList{QStringLiteral("of A"), QStringLiteral("of A seen"),
                                        QStringLiteral("of A")}));
}

void ProfileSelectorTest::loadProfile_fillsFormAgain_withoutReport_whenSelectionStays()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.prefix().setText(QStringLiteral("edited"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    form.selector().loadProfile(form.profile(0));
    QCOMPARE(form.prefix().text(), QStringLiteral("of A"));
    QCOMPARE(selected.count(), 0);
}

void ProfileSelectorTest::loadProfile_restoresName_whenAnotherWasTyped()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.typeName(QStringLiteral("other"));
    form.selector().loadProfile(form.profile(0));
    QCOMPARE(form.combo().currentText(), QStringLiteral("A"));
}

void ProfileSelectorTest::loadProfile_selectsNothing_whenItIsNotListed()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    FileNameProfile unlisted;
    unlisted.setFileOutputPrefix(QStringLiteral("unlisted"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy renamed(&form.selector(), &ProfileSelector::profileNameTextChanged);
    QTest::ignoreMessage(QtDebugMsg, emptyNameLine);
    form.selector().loadProfile(&unlisted);
    QCOMPARE(form.combo().currentIndex(), -1);
    QCOMPARE(form.combo().currentText(), QString());
    QCOMPARE(form.prefix().text(), QStringLiteral("unlisted"));
    QCOMPARE(selected.count(), 0);
    QCOMPARE(names(renamed), QStringList{QString()});
}

void ProfileSelectorTest::loadProfile_leavesForm_whenNull()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    QTest::ignoreMessage(QtDebugMsg, emptyNameLine);
    form.selector().loadProfile(nullptr);
    QCOMPARE(form.combo().currentIndex(), -1);
    QCOMPARE(form.prefix().text(), QStringLiteral("of A"));
}

void ProfileSelectorTest::picking_fillsForm_andReportsProfile()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    QTest::keyClick(&form.combo(), Qt::Key_Down);
    QCOMPARE(form.combo().currentIndex(), 1);
    QCOMPARE(form.prefix().text(), QStringLiteral("of B"));
    QCOMPARE(onlyProfile(selected), form.profile(1));
}

void ProfileSelectorTest::picking_fillsNothing_whenNameIsEmpty()
{
    NameForm form({QStringLiteral("A"), QString()});
    form.selector().loadProfile(form.profile(0));
    form.profile(1)->setFileOutputPrefix(QStringLiteral("of nobody"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    QTest::ignoreMessage(QtDebugMsg, emptyNameLine);
    form.combo().setCurrentIndex(1);
    QCOMPARE(form.prefix().text(), QStringLiteral("of A"));
    QCOMPARE(selected.count(), 0);
}

void ProfileSelectorTest::picking_reportsOnce_whenProfileIsListedTwice()
{
    NameForm form(abc());
    form.selector().addProfile(form.profile(1));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    form.combo().setCurrentIndex(3);
    QCOMPARE(form.combo().currentIndex(), 1);
    QCOMPARE(onlyProfile(selected), form.profile(1));
}

void ProfileSelectorTest::deselecting_onlyLogs()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    QTest::ignoreMessage(QtDebugMsg, emptyNameLine);
    form.combo().setCurrentIndex(-1);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(form.prefix().text(), QStringLiteral("of A"));
}

void ProfileSelectorTest::typing_isReported_andKeepsForm()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy renamed(&form.selector(), &ProfileSelector::profileNameTextChanged);
    form.typeName(QStringLiteral("xy"));
    QTest::keyClick(form.combo().lineEdit(), Qt::Key_Backspace);
    QTest::keyClick(form.combo().lineEdit(), Qt::Key_Backspace);
    QCOMPARE(names(renamed), (QStringList{QStringLiteral("x"), QStringLiteral("xy"),
                                          QStringLiteral("x"), QString()}));
    QCOMPARE(selected.count(), 0);
    QCOMPARE(form.combo().count(), 3);
    QCOMPARE(form.prefix().text(), QStringLiteral("of A"));
}

void ProfileSelectorTest::typing_isNotCompleted()
{
    NameForm form({QStringLiteral("Holiday in 4K")});
    QVERIFY(form.focusName());
    form.typeName(QStringLiteral("Holiday"));
    QCOMPARE(form.combo().currentText(), QStringLiteral("Holiday"));
    QCOMPARE(form.selector().currentListedProfile(), nullptr);
}

void ProfileSelectorTest::typedNameOfAnother_loadsNothing_onReturnOrLeaving()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.prefix().setText(QStringLiteral("entered"));
    QVERIFY(form.focusName());
    form.typeName(QStringLiteral("B"));
    QTest::keyClick(form.combo().lineEdit(), Qt::Key_Return);
    QCOMPARE(form.prefix().text(), QStringLiteral("entered"));
    form.combo().clearFocus();
    QCOMPARE(form.prefix().text(), QStringLiteral("entered"));
    QCOMPARE(form.selector().saveProfile(), form.profile(1));
    QCOMPARE(form.profile(1)->fileOutputPrefix(), QStringLiteral("entered"));
}

void ProfileSelectorTest::currentListedProfile_ignoresLetterCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("index");
    QTest::newRow("as it is") << QStringLiteral("My Profile") << 0;
    QTest::newRow("lower case") << QStringLiteral("my profile") << 0;
    QTest::newRow("upper case") << QStringLiteral("MY PROFILE") << 0;
    QTest::newRow("umlaut") << QStringLiteral("übergröße") << 1;
    QTest::newRow("emoji") << QStringLiteral("🎬 cut") << 2;
    QTest::newRow("beginning only") << QStringLiteral("My Pro") << -1;
    QTest::newRow("with space") << QStringLiteral("My Profile ") << -1;
    QTest::newRow("pattern") << QStringLiteral("My*") << -1;
    QTest::newRow("regular expression") << QStringLiteral(".*") << -1;
    QTest::newRow("empty") << QString() << -1;
}

void ProfileSelectorTest::currentListedProfile_ignoresLetterCase()
{
    QFETCH(QString, text);
    QFETCH(int, index);
    NameForm form({QStringLiteral("My Profile"), QStringLiteral("ÜBERGRÖßE"),
                   QStringLiteral("🎬 Cut"), QString()});
    form.combo().setEditText(text);
    BaseProfile* const expected = index >= 0 ? form.profile(index) : nullptr;
    QCOMPARE(form.selector().currentListedProfile(), expected);
}

void ProfileSelectorTest::currentListedProfile_isTheFirst_ofThoseThatMatch()
{
    NameForm form({QStringLiteral("x"), QStringLiteral("same"), QStringLiteral("SAME")});
    form.selector().loadProfile(form.profile(2));
    QCOMPARE(form.selector().currentListedProfile(), form.profile(1));
}

void ProfileSelectorTest::saveProfile_overwrites_whateverLetterCaseWasTyped()
{
    NameForm form({QStringLiteral("Other"), QStringLiteral("My Profile")});
    form.selector().loadProfile(form.profile(0));
    form.prefix().setText(QStringLiteral("entered"));
    form.typeName(QStringLiteral("my profile"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    QCOMPARE(form.selector().saveProfile(), form.profile(1));
    QCOMPARE(form.manager().profiles().size(), 2);
    QCOMPARE(form.combo().count(), 2);
    QCOMPARE(form.profile(1)->name(), QStringLiteral("My Profile"));
    QCOMPARE(form.storedPrefixes(),
             (QStringList{QStringLiteral("of Other"), QStringLiteral("entered")}));
    QCOMPARE(selected.count(), 0);
}

void ProfileSelectorTest::saveProfile_makesNewProfile_forNewName()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.prefix().setText(QStringLiteral("entered"));
    form.typeName(QStringLiteral("New"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    BaseProfile* const saved = form.selector().saveProfile();

    QCOMPARE(form.manager().profiles().size(), 4);
    QCOMPARE(saved, form.profile(3));
    QCOMPARE(saved->name(), QStringLiteral("New"));
    QCOMPARE(itemTexts(form.combo()), abc() + QStringList{QStringLiteral("New")});
    QCOMPARE(form.combo().currentIndex(), 3);
    QCOMPARE(onlyProfile(selected), saved);
    QCOMPARE(form.storedPrefixes(),
             (QStringList{QStringLiteral("of A"), QStringLiteral("of B"), QStringLiteral("of C"),
                          QStringLiteral("entered")}));
}

void ProfileSelectorTest::saveProfile_makesFirstProfile()
{
    NameForm form({});
    form.prefix().setText(QStringLiteral("entered"));
    form.typeName(QStringLiteral("First"));
    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const BaseProfile* const saved = form.selector().saveProfile();
    QCOMPARE(form.combo().currentText(), QStringLiteral("First"));
    QCOMPARE(form.combo().currentIndex(), 0);
    QCOMPARE(onlyProfile(selected), saved);
    QCOMPARE(form.storedPrefixes(), QStringList{QStringLiteral("entered")});
}

void ProfileSelectorTest::saveProfile_keepsWhatWasEntered_forNewName()
{
    NameForm form(abc());
    form.selector().loadProfile(form.profile(0));
    form.prefix().setText(QStringLiteral("entered"));
    form.type().setCurrentIndex(0);
    form.pad().setChecked(false);
    form.typeName(QStringLiteral("New"));
    const auto* const saved = static_cast<FileNameProfile*>(form.selector().saveProfile());
    QCOMPARE(saved->fileOutputPrefix(), QStringLiteral("entered"));
    QCOMPARE(saved->fileOutputType(), QStringLiteral("jpg"));
    QCOMPARE(saved->fileOutputCounterPadZeros(), false);
    QVERIFY(form.selector().isProfileSameAsForm(saved));
    QCOMPARE(form.prefix().text(), QStringLiteral("entered"));
}

void ProfileSelectorTest::saveProfile_makesOneProfile_whenSavedTwice()
{
    NameForm form(abc());
    form.typeName(QStringLiteral("New"));
    BaseProfile* const saved = form.selector().saveProfile();
    QCOMPARE(form.selector().saveProfile(), saved);
    QCOMPARE(form.manager().profiles().size(), 4);
}

void ProfileSelectorTest::saveProfile_makesNamelessProfile_whenNothingIsTyped()
{
    NameForm form(abc());
    QTest::ignoreMessage(QtDebugMsg, emptyNameLine);
    const BaseProfile* const saved = form.selector().saveProfile();
    QCOMPARE(saved->name(), QString());
    QCOMPARE(form.manager().profiles().size(), 4);
}

void ProfileSelectorTest::saveProfile_doesNothing_withoutManager()
{
    FileNameProfile profile;
    profile.setName(QStringLiteral("A"));
    ProfileSelector selector(nullptr);
    selector.addProfile(&profile);
    selector.loadProfile(&profile);
    QCOMPARE(selector.saveProfile(), nullptr);
}

void ProfileSelectorTest::names_surviveSavingAndSelecting_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes") << QStringLiteral("\"so-called\" 'profile'");
    QTest::newRow("slashes") << QStringLiteral("a/b\\c");
    QTest::newRow("emoji") << QStringLiteral("🎬👩‍👩‍👧‍👦 日本語");
    QTest::newRow("500 characters") << QString(500, QLatin1Char('W'));
    QTest::newRow("settings syntax") << QStringLiteral("[a]=b;c,%d&e");
    QTest::newRow("markup") << QStringLiteral("<b>name</b>");
    QTest::newRow("space") << QStringLiteral(" ");
}

void ProfileSelectorTest::names_surviveSavingAndSelecting()
{
    QFETCH(QString, name);
    NameForm form(abc());
    const int width = form.combo().sizeHint().width();
    form.combo().setEditText(name);
    BaseProfile* const saved = form.selector().saveProfile();
    QCOMPARE(form.combo().sizeHint().width(), width);

    form.selector().loadProfile(form.profile(0));
    form.combo().setCurrentIndex(3);
    QCOMPARE(form.combo().currentText(), name);
    QCOMPARE(form.selector().currentListedProfile(), saved);

    const ProfileManager stored(NameForm::fileName(), form.keeper().factory<FileNameProfile>(),
                                false);
    QCOMPARE(stored.profiles().at(3)->name(), name);
}

void ProfileSelectorTest::thousandProfiles_areListedAndSaved_withFewSteps()
{
    QStringList many;
    for (int i = 0; i < 1000; ++i) {
        many += QStringLiteral("Profile %1").arg(i);
    }
    NameForm form(many);
    QCOMPARE(itemTexts(form.combo()), many);

    const QSignalSpy selected(&form.selector(), &ProfileSelector::profileSelected);
    const QSignalSpy filled(&form.prefix(), &QLineEdit::textChanged);
    form.selector().loadProfile(form.profile(999));
    QCOMPARE(onlyProfile(selected), form.profile(999));
    QCOMPARE(filled.count(), 1);

    form.typeName(QStringLiteral("profile 500"));
    QCOMPARE(form.selector().saveProfile(), form.profile(500));
    QCOMPARE(form.profile(500)->fileOutputPrefix(), QStringLiteral("of Profile 999"));
    form.typeName(QStringLiteral("Profile 1000"));
    const BaseProfile* const saved = form.selector().saveProfile();
    QCOMPARE(saved, form.profile(1000));
    QCOMPARE(form.combo().count(), 1001);
}

QTEST_MAIN(ProfileSelectorTest)
#include "ProfileSelectorTest.moc"
