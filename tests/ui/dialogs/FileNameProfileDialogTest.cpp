#include "ui/dialogs/FileNameProfileDialog.h"

#include "tests/ui/dialogs/NameDialog.h"

#include <QGroupBox>
#include <QImageWriter>
#include <QLayout>
#include <QMap>
#include <QRegularExpression>

#include <memory>

using testsupport::addProfile;
using testsupport::manager;
using testsupport::NameDialog;
using testsupport::nameProfilesFile;

namespace {

QStringList labelTexts(const QWidget& widget)
{
    QStringList texts;
    const auto labels = widget.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        texts += label->text();
    }
    return texts;
}

} // namespace

class FileNameProfileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void form_hasItsTexts();
    void form_explainsSingleShot();
    void types_areThoseThatCanBeWritten();
    void window_hasNoHelpButton_andRoomInItsGroups();
    void inputs_haveNames_withoutSeeingThem();
    void tabKey_goesThroughTheForm_inOrder();
    void dialog_startsWithoutProfile();
    void profile_fillsForm_andCanBeSaved();
    void profile_fillsFormAgain_whenSetAgain();
    void noProfile_showsDefaults_withoutName();
    void pickedProfile_fillsForm_andRefreshesExamples();
    void examples_showWhatDefaultsGive();
    void examples_followEveryEdit();
    void examples_padCounter_whateverProfileSays();
    void examples_goByExampleFileName_data();
    void examples_goByExampleFileName();
    void basename_showsWhatItStandsFor_whenEmpty();
    void longNames_doNotWidenTheDialog();

private:
    std::unique_ptr<TestHome> m_home;
};

void FileNameProfileDialogTest::init()
{
    m_home = std::make_unique<TestHome>();
    forgetProfiles(manager(), nameProfilesFile());
}

void FileNameProfileDialogTest::form_hasItsTexts()
{
    NameDialog names;
    QCOMPARE(names->windowTitle(), QStringLiteral("File Name Profile Settings"));
    QStringList groups;
    const auto boxes = names->findChildren<QGroupBox*>();
    for (const QGroupBox* const box : boxes) {
        groups += box->title();
    }
    QCOMPARE(groups,
             (QStringList{QStringLiteral("Select Profile"), QStringLiteral("File Name Format"),
                          QStringLiteral("Example Output")}));
    QCOMPARE(labelTexts(*boxes.at(1)),
             (QStringList{QStringLiteral("Prefix:"), QStringLiteral("File Name:"),
                          QStringLiteral("Suffix:"), QStringLiteral("Type:")}));
    QCOMPARE(labelTexts(*boxes.at(2)),
             (QStringList{QStringLiteral("Example Video:"), QStringLiteral("video.mpeg"),
                          QStringLiteral("Example Output:"), QStringLiteral("video-03.jpeg"),
                          QStringLiteral("Single Shot:"), QStringLiteral("video-.jpeg")}));
    QCOMPARE(names.reset().text(), QStringLiteral("Reset to Defaults"));
    QCOMPARE(names.save().text(), QStringLiteral("Save"));
    QCOMPARE(names.cancel().text(), QStringLiteral("Cancel"));
}

void FileNameProfileDialogTest::form_explainsSingleShot()
{
    NameDialog names;
    const QString text = QStringLiteral("For Batch Mode when only a single image is requested.");
    QStringList explained;
    const auto labels = names->findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->toolTip() == text) {
            explained += label->text();
        }
    }
    QCOMPARE(explained,
             (QStringList{QStringLiteral("Single Shot:"), QStringLiteral("video-.jpeg")}));
}

void FileNameProfileDialogTest::types_areThoseThatCanBeWritten()
{
    NameDialog names;
    QStringList shown;
    QStringList stored;
    for (int i = 0; i < names.type().count(); ++i) {
        shown += names.type().itemText(i);
        stored += names.type().itemData(i).toString();
    }
    QStringList expected = QStringLiteral("jpg jpeg png tif tiff").split(QLatin1Char(' '));
    const auto writable = QImageWriter::supportedImageFormats();
    for (const char* const optional : {"webp", "avif", "jxl"}) {
        if (writable.contains(optional)) {
            expected += QString::fromLatin1(optional);
        }
    }
    QCOMPARE(stored, expected);
    QCOMPARE(shown, expected.replaceInStrings(QRegularExpression(QStringLiteral("^")),
                                              QStringLiteral(".")));
}

void FileNameProfileDialogTest::window_hasNoHelpButton_andRoomInItsGroups()
{
    NameDialog names;
    QVERIFY(!names->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(names->windowFlags().testFlag(Qt::Dialog));
    const auto boxes = names->findChildren<QGroupBox*>();
    for (const QGroupBox* const box : boxes) {
        QCOMPARE(box->layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    }
}

void FileNameProfileDialogTest::inputs_haveNames_withoutSeeingThem()
{
    NameDialog names;
    const QList<QWidget*> inputs{&names.profiles(), &names.prefix(), &names.baseName(),
                                 &names.suffix(), &names.type()};
    QStringList found;
    for (const QWidget* const input : inputs) {
        found += input->accessibleName();
    }
    QCOMPARE(found, QStringLiteral("Profile|Prefix|File Name|Suffix|Type").split(QLatin1Char('|')));
}

void FileNameProfileDialogTest::tabKey_goesThroughTheForm_inOrder()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QVERIFY(names.show());
    names.profiles().setFocus();
    // The buttons are in the order of the platform.
    QStringList expected{
        QStringLiteral("profileComboBox"),      QStringLiteral("profileMenuButton"),
        QStringLiteral("formatPrefixLineEdit"), QStringLiteral("formatBasenameLineEdit"),
        QStringLiteral("formatSuffixLineEdit"), QStringLiteral("formatFileExtensionComboBox")};
    QMap<int, QString> buttons;
    for (const QPushButton* const button : {&names.reset(), &names.save(), &names.cancel()}) {
        buttons.insert(button->x(), button->objectName());
    }
    expected += buttons.values();

    QStringList visited;
    for (int i = 0; i < expected.size(); ++i) {
        visited += names->focusWidget()->objectName();
        QTest::keyClick(names->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, expected);
    QCOMPARE(names->focusWidget(), &names.profiles());
}

void FileNameProfileDialogTest::dialog_startsWithoutProfile()
{
    addProfile(QStringLiteral("A"));
    addProfile(QStringLiteral("B"));
    NameDialog names;
    QCOMPARE(names->selectedProfile(), nullptr);
    QCOMPARE(names.profiles().count(), 2);
    QCOMPARE(names.profiles().itemText(1), QStringLiteral("B"));
    QCOMPARE(names.profiles().currentText(), QString());
    QVERIFY(!names.save().isEnabled());
}

void FileNameProfileDialogTest::profile_fillsForm_andCanBeSaved()
{
    addProfile(QStringLiteral("A"));
    FileNameProfile* const profile = addProfile(QStringLiteral("B"), QStringLiteral("shot_"));
    profile->setFileBaseName(QStringLiteral("Scene"));
    profile->setFileOutputSuffix(QStringLiteral("_"));
    profile->setFileOutputType(QStringLiteral("png"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QCOMPARE(names->selectedProfile(), profile);
    QCOMPARE(names.profiles().currentText(), QStringLiteral("B"));
    QCOMPARE(names.prefix().text(), QStringLiteral("shot_"));
    QCOMPARE(names.baseName().text(), QStringLiteral("Scene"));
    QCOMPARE(names.suffix().text(), QStringLiteral("_"));
    QCOMPARE(names.type().currentText(), QStringLiteral(".png"));
    QCOMPARE(names.example(), QStringLiteral("shot_Scene_00001.png"));
    QCOMPARE(names.singleShot(), QStringLiteral("shot_Scene_.png"));
    QVERIFY(names.save().isEnabled());
}

void FileNameProfileDialogTest::profile_fillsFormAgain_whenSetAgain()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names.prefix().setText(QStringLiteral("x"));
    names->setSelectedProfile(profile);
    QCOMPARE(names.prefix().text(), QStringLiteral("a-"));
    QCOMPARE(names.example(), QStringLiteral("a-MyVideo-00001.jpeg"));
}

void FileNameProfileDialogTest::noProfile_showsDefaults_withoutName()
{
    addProfile(QStringLiteral("A"), QStringLiteral("a-"));
    NameDialog names;
    names->setSelectedProfile(nullptr);
    QCOMPARE(names->selectedProfile(), nullptr);
    QCOMPARE(names.profiles().currentText(), QString());
    QCOMPARE(names.suffix().text(), QStringLiteral("-"));
    QCOMPARE(names.type().currentText(), QStringLiteral(".jpeg"));
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001.jpeg"));
    QVERIFY(!names.save().isEnabled());
    QCOMPARE(manager().profiles().size(), 1);
}

void FileNameProfileDialogTest::pickedProfile_fillsForm_andRefreshesExamples()
{
    FileNameProfile* const first = addProfile(QStringLiteral("A"));
    addProfile(QStringLiteral("B"), QStringLiteral("b-"));
    NameDialog names;
    names->setSelectedProfile(first);
    QTest::keyClick(&names.profiles(), Qt::Key_Down);
    QCOMPARE(names.prefix().text(), QStringLiteral("b-"));
    QCOMPARE(names.example(), QStringLiteral("b-MyVideo-00001.jpeg"));
    QCOMPARE(names->selectedProfile(), first);
}

void FileNameProfileDialogTest::examples_showWhatDefaultsGive()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QCOMPARE(names.exampleVideo(), QStringLiteral("MyVideo.mpeg"));
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001.jpeg"));
    QCOMPARE(names.singleShot(), QStringLiteral("MyVideo-.jpeg"));
}

void FileNameProfileDialogTest::examples_followEveryEdit()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    QTest::keyClicks(&names.prefix(), QStringLiteral("p"));
    QCOMPARE(names.example(), QStringLiteral("pMyVideo-00001.jpeg"));
    QTest::keyClicks(&names.baseName(), QStringLiteral("b"));
    QCOMPARE(names.example(), QStringLiteral("pb-00001.jpeg"));
    QTest::keyClicks(&names.suffix(), QStringLiteral("s"));
    QCOMPARE(names.example(), QStringLiteral("pb-s00001.jpeg"));
    names.type().setCurrentIndex(2);
    QCOMPARE(names.example(), QStringLiteral("pb-s00001.png"));
    QCOMPARE(names.singleShot(), QStringLiteral("pb-s.png"));
}

void FileNameProfileDialogTest::examples_padCounter_whateverProfileSays()
{
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    profile->setFileOutputCounterPadZeros(false);
    NameDialog names;
    names->setSelectedProfile(profile);
    QCOMPARE(names.example(), QStringLiteral("MyVideo-00001.jpeg"));
}

void FileNameProfileDialogTest::examples_goByExampleFileName_data()
{
    QTest::addColumn<QString>("video");
    QTest::addColumn<QString>("baseName");
    QTest::newRow("one dot") << QStringLiteral("Beach.mp4") << QStringLiteral("Beach");
    QTest::newRow("several dots") << QStringLiteral("Beach.2024.mp4") << QStringLiteral("Beach");
    QTest::newRow("no dot") << QStringLiteral("Beach") << QStringLiteral("Beach");
    QTest::newRow("dot first") << QStringLiteral(".mp4") << QString();
    QTest::newRow("folder") << QStringLiteral("/a.b/Beach.mp4") << QStringLiteral("Beach");
    QTest::newRow("emoji") << QStringLiteral("🏖 日本.mp4") << QStringLiteral("🏖 日本");
    QTest::newRow("markup") << QStringLiteral("<b>&amp;.mp4") << QStringLiteral("<b>&amp;");
}

void FileNameProfileDialogTest::examples_goByExampleFileName()
{
    QFETCH(QString, video);
    QFETCH(QString, baseName);
    FileNameProfile* const profile = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(profile);
    names->setExampleFileName(video);
    QCOMPARE(names.exampleVideo(), video);
    QCOMPARE(names.example(), baseName + QStringLiteral("-00001.jpeg"));
    QCOMPARE(names.singleShot(), baseName + QStringLiteral("-.jpeg"));
}

void FileNameProfileDialogTest::basename_showsWhatItStandsFor_whenEmpty()
{
    NameDialog names;
    names->setExampleFileName(QStringLiteral("Beach.mp4"));
    QCOMPARE(names.baseName().placeholderText(), QStringLiteral("Beach"));
    QCOMPARE(names.baseName().text(), QString());
}

void FileNameProfileDialogTest::longNames_doNotWidenTheDialog()
{
    const QString longName(500, QLatin1Char('W'));
    FileNameProfile* const ordinary = addProfile(QStringLiteral("A"));
    NameDialog names;
    names->setSelectedProfile(ordinary);
    QVERIFY(names.show());
    const QSize size = names->size();
    const QSize minimum = names->minimumSizeHint();

    FileNameProfile* const longNamed = addProfile(longName, longName);
    NameDialog longer;
    longer->setExampleFileName(longName);
    longer->setSelectedProfile(longNamed);
    QVERIFY(longer.show());
    QCOMPARE(longer.profiles().currentText(), longName);
    QCOMPARE(longer->minimumSizeHint(), minimum);
    QCOMPARE(longer->size(), size);
}

QTEST_MAIN(FileNameProfileDialogTest)
#include "FileNameProfileDialogTest.moc"
