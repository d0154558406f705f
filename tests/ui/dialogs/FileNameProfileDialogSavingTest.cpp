#include "tests/ui/dialogs/NameDialog.h"

#include "tests/ui/support/NextBox.h"

#include <QFile>

#include <memory>

using testsupport::addProfile;
using testsupport::answerNextBox;
using testsupport::manager;
using testsupport::NameDialog;
using testsupport::nameProfilesFile;
using testsupport::SeenBox;

class FileNameProfileDialogSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tif_isStored_andShownInExamples();
    void unknownType_selectsNothing_andIsSavedEmpty();
    void save_isEnabled_exactlyWithAName();
    void save_overwritesProfile_keepsItsPadding_andCloses();
    void save_makesProfile_forNewName();
    void save_takesTheOneWhoseNameIsTyped_onceThatIsConfirmed();
    void cancel_savesNothing_andCloses();
    void reset_showsDefaults_butSavesNothing();
    void returnKey_saves_data();
    void returnKey_saves();
    void returnKey_doesNothing_withoutName();
    void returnKey_cancels_onCancel();
    void escapeKey_cancels();
    void enteredParts_areSavedAsTheyAre_data();
    void enteredParts_areSavedAsTheyAre();

private:
    std::unique_ptr<TestHome> m_home;
};

void FileNameProfileDialogSavingTest::init()
{
    m_home = std::make_unique<TestHome>();
    forgetProfiles(manager(), nameProfilesFile());
}

void FileNameProfileDialogSavingTest::tif_isStored_andShownInExamples()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names.type().setCurrentText(QStringLiteral(".tif"));
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001.tif"));
    QCOMPARE(names.singleShot(), QStringLiteral("MyVideo-.tif"));
    names.save().click();
    QCOMPARE(profile->fileOutputType(), QStringLiteral("tif"));
}

void FileNameProfileDialogSavingTest::unknownType_selectsNothing_andIsSavedEmpty()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    profile->setFileOutputType(QStringLiteral("bmp"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QCOMPARE(names.type().currentIndex(), -1);
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001."));
    names.save().click();
    QCOMPARE(profile->fileOutputType(), QString());
}

void FileNameProfileDialogSavingTest::save_isEnabled_exactlyWithAName()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names.profiles().clearEditText();
    QVERIFY(!names.save().isEnabled());
    QTest::keyClicks(names.profiles().lineEdit(), QStringLiteral("x"));
    QVERIFY(names.save().isEnabled());
    QTest::keyClick(names.profiles().lineEdit(), Qt::Key_Backspace);
    QVERIFY(!names.save().isEnabled());
}

void FileNameProfileDialogSavingTest::save_overwritesProfile_keepsItsPadding_andCloses()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    profile->setFileOutputCounterPadZeros(false);
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    names.save().click();
    QVERIFY(!names->isVisible());
    QCOMPARE(names->selectedProfile(), profile);
    QCOMPARE(profile->fileOutputPrefix(), QStringLiteral("new-"));
    QCOMPARE(profile->fileOutputCounterPadZeros(), false);

    ProfileKeeper keeper;
    const ProfileManager stored(nameProfilesFile(), keeper.factory<FileNameProfile>(), false);
    QCOMPARE(stored.profiles().size(), 1);
    QCOMPARE(static_cast<FileNameProfile*>(stored.profiles().at(0))->fileOutputPrefix(),
             QStringLiteral("new-"));
}

void FileNameProfileDialogSavingTest::save_makesProfile_forNewName()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names.prefix().setText(QStringLiteral("new-"));
    names.typeName(QStringLiteral("New"));
    names.save().click();
    QCOMPARE(manager().profiles().size(), 2);
    QCOMPARE(names->selectedProfile(), manager().profiles().at(1));
    QCOMPARE(names->selectedProfile()->name(), QStringLiteral("New"));
    QCOMPARE(names->selectedProfile()->fileOutputPrefix(), QStringLiteral("new-"));
    QCOMPARE(profile->fileOutputPrefix(), QStringLiteral("a-"));
}

void FileNameProfileDialogSavingTest::save_takesTheOneWhoseNameIsTyped_onceThatIsConfirmed()
{
    FileNameProfile* const first = addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    FileNameProfile* const second = addProfile(QStringLiteral("My Profile"));
    NameDialog names;
    names->setSelectedProfile(first);
    names.typeName(QStringLiteral("my profile"));
    SeenBox box;
    answerNextBox(QMessageBox::No, box);
    names.save().click();
    QVERIFY(box.text.contains(QStringLiteral("My Profile")));
    QCOMPARE(names->selectedProfile(), first);
    QCOMPARE(second->fileOutputPrefix(), QString());
    answerNextBox(QMessageBox::Yes, box);
    names.save().click();
    QCOMPARE(names->selectedProfile(), second);
    QCOMPARE(second->fileOutputPrefix(), QStringLiteral("a-"));
    QCOMPARE(second->name(), QStringLiteral("My Profile"));
    QCOMPARE(manager().profiles().size(), 2);
}

void FileNameProfileDialogSavingTest::cancel_savesNothing_andCloses()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    names.typeName(QStringLiteral("New"));
    names.cancel().click();
    QVERIFY(!names->isVisible());
    QCOMPARE(names->selectedProfile(), profile);
    QCOMPARE(profile->fileOutputPrefix(), QStringLiteral("a-"));
    QCOMPARE(manager().profiles().size(), 1);
    QVERIFY(!QFile::exists(m_home->settingsFile(nameProfilesFile())));
}

void FileNameProfileDialogSavingTest::reset_showsDefaults_butSavesNothing()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    profile->setFileOutputType(QStringLiteral("png"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.reset().click();
    QVERIFY(names->isVisible());
    QCOMPARE(names.prefix().text(), QString());
    QCOMPARE(names.suffix().text(), QStringLiteral("-"));
    QCOMPARE(names.type().currentText(), QStringLiteral(".jpeg"));
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001.jpeg"));
    QCOMPARE(names.profiles().currentText(), QStringLiteral("A"));
    QCOMPARE(profile->fileOutputPrefix(), QStringLiteral("a-"));

    names.save().click();
    QCOMPARE(profile->fileOutputPrefix(), QString());
    QCOMPARE(profile->fileOutputType(), QStringLiteral("jpeg"));
}

void FileNameProfileDialogSavingTest::returnKey_saves_data()
{
    QTest::addColumn<QByteArray>("widget");
    for (const char* const name : {"profileComboBox", "formatPrefixLineEdit",
                                   "formatFileExtensionComboBox", "resetToDefaultsButton"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void FileNameProfileDialogSavingTest::returnKey_saves()
{
    QFETCH(QByteArray, widget);
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    names.find<QWidget>(widget.constData()).setFocus();
    QTest::keyClick(names->focusWidget(), Qt::Key_Return);
    QVERIFY(!names->isVisible());
    QCOMPARE(profile->fileOutputPrefix(), QStringLiteral("new-"));
}

void FileNameProfileDialogSavingTest::returnKey_doesNothing_withoutName()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    names.profiles().clearEditText();
    QTest::keyClick(names.profiles().lineEdit(), Qt::Key_Return);
    QVERIFY(names->isVisible());
    QCOMPARE(manager().profiles().size(), 1);
    QCOMPARE(profile->fileOutputPrefix(), QString());
}

void FileNameProfileDialogSavingTest::returnKey_cancels_onCancel()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    names.cancel().setFocus();
    QTest::keyClick(&names.cancel(), Qt::Key_Return);
    QVERIFY(!names->isVisible());
    QCOMPARE(profile->fileOutputPrefix(), QString());
}

void FileNameProfileDialogSavingTest::escapeKey_cancels()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.prefix().setText(QStringLiteral("new-"));
    QTest::keyClick(&names.prefix(), Qt::Key_Escape);
    QVERIFY(!names->isVisible());
    QCOMPARE(profile->fileOutputPrefix(), QString());
}

void FileNameProfileDialogSavingTest::enteredParts_areSavedAsTheyAre_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("quotes") << QStringLiteral("\"a\" 'b'");
    QTest::newRow("slashes") << QStringLiteral("a/b\\c");
    QTest::newRow("emoji") << QStringLiteral("🎬👩‍👩‍👧‍👦");
    QTest::newRow("placeholder") << QStringLiteral("%1 %2");
    QTest::newRow("spaces") << QStringLiteral("  ");
    QTest::newRow("500 characters") << QString(500, QLatin1Char('W'));
}

void FileNameProfileDialogSavingTest::enteredParts_areSavedAsTheyAre()
{
    QFETCH(QString, part);
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names.prefix().setText(part);
    names.baseName().setText(part);
    names.suffix().setText(part);
    QCOMPARE(names.example(), part + part + part + QStringLiteral("00001.jpeg"));
    names.save().click();
    QCOMPARE(profile->fileOutputPrefix(), part);
    QCOMPARE(profile->fileBaseName(), part);
    QCOMPARE(profile->fileOutputSuffix(), part);
}

QTEST_MAIN(FileNameProfileDialogSavingTest)
#include "FileNameProfileDialogSavingTest.moc"
