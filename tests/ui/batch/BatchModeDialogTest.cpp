#include "ui/batch/BatchModeDialog.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/ui/batch/ModeDialog.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/NoFocusItemDelegate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using testsupport::ModeDialog;
using testsupport::multiple;

namespace {

QString number(qlonglong value)
{
    return QString::number(value);
}

} // namespace

class BatchModeDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isReadyForVideos();
    void fields_bindTheJobsProperties();
    void inputs_haveNames_withoutSeeingThem();
    void tabKey_goesThroughTheForm_inOrder();
    void firstItems_ofComboBoxes_cannotBeChosen();
    void emptyList_disablesTheForm();
    void selection_fillsTheForm();
    void fileNameColumns_showTheJobs();
    void differences_areShownAsMultiple();
    void sameProfiles_areShown_andDifferentOnesAsMultiple();
    void differentIntervalTypes_checkNoRadioButton();
    void loadingTheForm_changesNoJob();
    void edits_goIntoAllSelectedJobs();
    void edits_replaceWhatDiffered();
    void returnKey_endsTyping_andStartsNothing();
    void newJobs_takeExactFrames_unlessTheLastDidNot();
    void exactFrames_areChosenForAllSelectedJobs();
    void chosenProfile_goesIntoTheJobs();
    void chosenFileNameProfile_showsItsExample();
    void editButtons_needAProfile();
    void manyJobs_areFilledInOnce_whenSelected();
};

void BatchModeDialogTest::form_isReadyForVideos()
{
    ModeDialog mode;
    QCOMPARE(mode.dialog().windowTitle(), QStringLiteral("Morvantile Batch Mode"));
    QVERIFY(!mode.dialog().windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(mode.table().selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(qobject_cast<NoFocusItemDelegate*>(mode.table().itemDelegate()) != nullptr);
    QVERIFY(!mode.table().horizontalHeader()->highlightSections());
    QStringList titles;
    for (const char* const name : {"filesGroupBox", "selectedVideoGroupBox", "imageProfileGroupBox",
                                   "fileOutputGroupBox", "intervalGroupBox", "skipGroupBox"}) {
        titles.append(mode.find<QGroupBox>(name).title());
    }
    QCOMPARE(titles,
             (QStringList{QStringLiteral("Files"), QStringLiteral("Selected Video File"),
                          QStringLiteral("Image Settings"), QStringLiteral("File Output"),
                          QStringLiteral("Snapshot Interval"), QStringLiteral("Skip Seconds")}));
    QStringList buttons;
    for (const char* const name :
         {"loadVideoButton", "removeVideoButton", "selectAllVideoButton", "imageProfileEditButton",
          "filenameProfileEditButton", "fileOutputFolderSelectButton", "intervalImagesRadioButton",
          "intervalMillisecondsRadioButton", "intervalSingleShotRadioButton", "startButton",
          "cancelButton"}) {
        buttons.append(mode.find<QAbstractButton>(name).text());
    }
    QCOMPARE(buttons.join(QLatin1Char('|')),
             QStringLiteral("Load Video|Remove|Select All|Edit|Edit|Choose Folder|Make|"
                            "Every|Single shot at|Start|Cancel"));
}

void BatchModeDialogTest::fields_bindTheJobsProperties()
{
    ModeDialog mode;
    QCOMPARE(testsupport::fieldsOf(mode.dialog()),
             (QStringList{QStringLiteral("source selectedVideoFileNameLabel -1"),
                          QStringLiteral("imageProfileId imageProfileComboBox -1"),
                          QStringLiteral("fileOutputPath fileOutputFolderTextEdit -1"),
                          QStringLiteral("filenameProfileId filenameProfileComboBox -1"),
                          QStringLiteral("filenameExample filenameOutputExampleLabel -1"),
                          QStringLiteral("intervalType intervalMillisecondsRadioButton 0"),
                          QStringLiteral("intervalType intervalImagesRadioButton 1"),
                          QStringLiteral("intervalType intervalSingleShotRadioButton 2"),
                          QStringLiteral("intervalMilliseconds intervalMillisecondsTextEdit -1"),
                          QStringLiteral("intervalImages intervalImagesTextEdit -1"),
                          QStringLiteral("intervalSingleShot intervalSingleShotComboBox -1"),
                          QStringLiteral("exactFrames exactFramesCheckBox -1"),
                          QStringLiteral("skipFront skipFrontTextEdit -1"),
                          QStringLiteral("skipBack skipBackTextEdit -1")}));
}

void BatchModeDialogTest::inputs_haveNames_withoutSeeingThem()
{
    ModeDialog mode;
    QStringList unnamed = testsupport::inputsWithoutName(mode.dialog());
    // Qt's own parts of the list.
    unnamed.removeAll(QString());
    QCOMPARE(unnamed.join(QLatin1Char(' ')), QString());
}

void BatchModeDialogTest::tabKey_goesThroughTheForm_inOrder()
{
    ModeDialog mode;
    mode.load(1);
    QCOMPARE(
        testsupport::tabOrder(mode.dialog()).join(QLatin1Char(' ')),
        QStringLiteral(
            "filesTableView loadVideoButton removeVideoButton selectAllVideoButton "
            "imageProfileComboBox imageProfileEditButton filenameProfileComboBox "
            "filenameProfileEditButton fileOutputFolderTextEdit "
            "fileOutputFolderSelectButton intervalImagesRadioButton "
            "intervalImagesTextEdit intervalMillisecondsRadioButton "
            "intervalMillisecondsTextEdit intervalSingleShotRadioButton "
            "intervalSingleShotComboBox exactFramesCheckBox skipFrontTextEdit skipBackTextEdit "
            "useForNewVideosButton startButton cancelButton"));
}

void BatchModeDialogTest::firstItems_ofComboBoxes_cannotBeChosen()
{
    const ModeDialog mode;
    for (const char* const name :
         {"imageProfileComboBox", "filenameProfileComboBox", "intervalSingleShotComboBox"}) {
        const auto& box = mode.find<QComboBox>(name);
        QCOMPARE(box.itemText(0), QStringLiteral("-"));
        QCOMPARE(box.itemData(0).toString(), QStringLiteral("-"));
        const auto flags = box.model()->flags(box.model()->index(0, 0));
        QVERIFY(!flags.testFlag(Qt::ItemIsEnabled) && !flags.testFlag(Qt::ItemIsSelectable));
    }
    const auto& places = mode.find<QComboBox>("intervalSingleShotComboBox");
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(places.itemData(i + 1).toInt(), i);
    }
    QCOMPARE(places.itemText(3), QStringLiteral("back"));
    QCOMPARE(mode.find<QComboBox>("imageProfileComboBox").itemText(2), QStringLiteral("Two"));
}

void BatchModeDialogTest::emptyList_disablesTheForm()
{
    ModeDialog mode;
    const auto expectEmpty = [&mode] {
        QCOMPARE(mode.enabledOnes(), QStringList());
        QVERIFY(!mode.find<QPushButton>("startButton").isEnabled());
        QCOMPARE(mode.labelText("selectedVideoFileNameLabel"),
                 QStringLiteral("[No Video Selected]"));
        QCOMPARE(mode.labelText("filenameOutputExampleLabel"), QString());
        for (const char* const edit :
             {"fileOutputFolderTextEdit", "intervalMillisecondsTextEdit", "intervalImagesTextEdit",
              "skipFrontTextEdit", "skipBackTextEdit"}) {
            QCOMPARE(mode.text(edit), QString());
            QCOMPARE(mode.placeholder(edit), QString());
        }
        QCOMPARE(mode.comboText("imageProfileComboBox"), QStringLiteral("-"));
    };
    expectEmpty();
    mode.load(3);
    QCOMPARE(mode.enabledOnes().size(), 17);
    QVERIFY(mode.find<QPushButton>("startButton").isEnabled());
    mode.click("selectAllVideoButton");
    mode.click("removeVideoButton");
    QCOMPARE(mode.model().rowCount(), 0);
    expectEmpty();
}

void BatchModeDialogTest::selection_fillsTheForm()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(1).setIntervalType(BatchWorkerConfig::SingleShot);
    mode.job(1).setIntervalSingleShot(BatchWorkerConfig::Back);
    mode.job(1).setIntervalImages(7);
    mode.job(1).setSkipFront(5000000000);
    mode.select({1});
    QCOMPARE(mode.labelText("selectedVideoFileNameLabel"), mode.file(1));
    QCOMPARE(mode.labelText("filenameOutputExampleLabel"), QStringLiteral("b-.jpeg"));
    QCOMPARE(mode.text("fileOutputFolderTextEdit"), mode.dir().path());
    QCOMPARE(mode.comboText("imageProfileComboBox"), QStringLiteral("One"));
    QCOMPARE(mode.comboText("filenameProfileComboBox"), QStringLiteral("One"));
    QVERIFY(mode.isChecked("intervalSingleShotRadioButton"));
    QCOMPARE(mode.comboText("intervalSingleShotComboBox"), QStringLiteral("back"));
    QCOMPARE(mode.text("intervalImagesTextEdit"), number(7));
    QCOMPARE(mode.text("intervalMillisecondsTextEdit"), number(5));
    QCOMPARE(mode.text("skipFrontTextEdit"), number(5000000));
    QCOMPARE(mode.text("skipBackTextEdit"), number(2));
    mode.select({});
    QCOMPARE(mode.labelText("selectedVideoFileNameLabel"), QStringLiteral("[No Video Selected]"));
    QCOMPARE(mode.enabledOnes(), QStringList());
    QVERIFY(mode.find<QPushButton>("startButton").isEnabled());
}

void BatchModeDialogTest::fileNameColumns_showTheJobs()
{
    ModeDialog mode;
    mode.load(1);
    QCOMPARE(mode.model().index(0, 0).data().toString(), QStringLiteral("a"));
    QCOMPARE(mode.model().index(0, 3).data().toString(), QStringLiteral("a-00001.jpeg"));
}

void BatchModeDialogTest::differences_areShownAsMultiple()
{
    ModeDialog mode;
    mode.load(3);
    mode.job(0).setFileOutputPath(QStringLiteral("/tmp"));
    mode.job(1).setIntervalMilliseconds(100);
    mode.job(1).setIntervalSingleShot(BatchWorkerConfig::Front);
    mode.job(2).setSkipBack(0);
    mode.click("selectAllVideoButton");
    mode.select({0, 1, 2});
    QCOMPARE(mode.labelText("selectedVideoFileNameLabel"), multiple);
    QCOMPARE(mode.labelText("filenameOutputExampleLabel"), multiple);
    for (const char* const edit :
         {"fileOutputFolderTextEdit", "intervalMillisecondsTextEdit", "skipBackTextEdit"}) {
        QCOMPARE(mode.text(edit), QString());
        QCOMPARE(mode.placeholder(edit), multiple);
    }
    QCOMPARE(mode.text("skipFrontTextEdit"), number(2));
    QCOMPARE(mode.placeholder("skipFrontTextEdit"), QString());
    QCOMPARE(mode.find<QComboBox>("intervalSingleShotComboBox").currentIndex(), 0);
    QCOMPARE(mode.comboText("intervalSingleShotComboBox"), multiple);
    QVERIFY(mode.isChecked("intervalMillisecondsRadioButton"));
    mode.select({2});
    QCOMPARE(mode.placeholder("intervalMillisecondsTextEdit"), QString());
    QCOMPARE(mode.find<QComboBox>("intervalSingleShotComboBox").itemText(0), QStringLiteral("-"));
    QCOMPARE(mode.comboText("intervalSingleShotComboBox"), QStringLiteral("middle"));
}

void BatchModeDialogTest::sameProfiles_areShown_andDifferentOnesAsMultiple()
{
    ModeDialog mode;
    mode.load(2);
    QCOMPARE(mode.comboText("imageProfileComboBox"), QStringLiteral("One"));
    mode.select({1});
    mode.choose("imageProfileComboBox", 2);
    mode.select({0, 1});
    QCOMPARE(mode.find<QComboBox>("imageProfileComboBox").currentIndex(), 0);
    QCOMPARE(mode.comboText("imageProfileComboBox"), multiple);
    QCOMPARE(mode.comboText("filenameProfileComboBox"), QStringLiteral("One"));
}

void BatchModeDialogTest::differentIntervalTypes_checkNoRadioButton()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(1).setIntervalType(BatchWorkerConfig::SpreadImages);
    mode.select({0, 1});
    for (const char* const button : {"intervalMillisecondsRadioButton", "intervalImagesRadioButton",
                                     "intervalSingleShotRadioButton"}) {
        QVERIFY2(!mode.isChecked(button), button);
    }
    mode.select({1});
    QVERIFY(mode.isChecked("intervalImagesRadioButton"));
}

void BatchModeDialogTest::loadingTheForm_changesNoJob()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setIntervalType(BatchWorkerConfig::SingleShot);
    mode.job(1).setIntervalType(BatchWorkerConfig::SpreadImages);
    mode.job(1).setIntervalMilliseconds(100);
    const QSignalSpy changes(&mode.model(), &BatchModeListModel::dataChanged);
    for (const QList<int>& rows : {QList<int>{0}, {1}, {0, 1}, {}, {1}}) {
        mode.select(rows);
    }
    QCOMPARE(changes.size(), 0);
    QCOMPARE(mode.job(0).intervalType(), 2);
    QCOMPARE(mode.job(1).intervalType(), 1);
    QCOMPARE(mode.job(1).intervalMilliseconds(), 100);
}

void BatchModeDialogTest::edits_goIntoAllSelectedJobs()
{
    ModeDialog mode;
    mode.load(3);
    mode.select({0, 2});
    mode.type("skipFrontTextEdit", QStringLiteral("0.017"));
    mode.type("fileOutputFolderTextEdit", QStringLiteral("/tmp"));
    mode.choose("intervalSingleShotComboBox", 3);
    for (const int row : {0, 2}) {
        QCOMPARE(mode.job(row).skipFront(), 17);
        QCOMPARE(mode.job(row).fileOutputPath(), QStringLiteral("/tmp"));
        QCOMPARE(mode.job(row).intervalSingleShot(), 2);
        QCOMPARE(mode.model().index(row, 1).data().toString(), QStringLiteral("/tmp"));
    }
    QCOMPARE(mode.job(1).skipFront(), 2000);
    QCOMPARE(mode.job(1).fileOutputPath(), mode.dir().path());
    QCOMPARE(mode.job(1).intervalSingleShot(), 1);
}

void BatchModeDialogTest::edits_replaceWhatDiffered()
{
    ModeDialog mode;
    mode.load(2);
    mode.job(0).setSkipBack(1);
    mode.select({0, 1});
    mode.type("skipBackTextEdit", QStringLiteral("0,003"));
    QCOMPARE(mode.placeholder("skipBackTextEdit"), QString());
    QCOMPARE(mode.job(0).skipBack(), 3);
    QCOMPARE(mode.job(1).skipBack(), 3);
}

void BatchModeDialogTest::returnKey_endsTyping_andStartsNothing()
{
    ModeDialog mode;
    mode.load(1);
    QVERIFY(testsupport::showActive(mode.dialog()));
    const QSignalSpy starts(&mode.find<QPushButton>("startButton"), &QPushButton::clicked);
    mode.enter("skipFrontTextEdit", QStringLiteral("5"));
    mode.enter("fileOutputFolderTextEdit", QStringLiteral("/tmp"));
    QCOMPARE(starts.size(), 0);
    QVERIFY(mode.find<QPushButton>("startButton").isDefault());
}

void BatchModeDialogTest::newJobs_takeExactFrames_unlessTheLastDidNot()
{
    ModeDialog mode;
    mode.load(1);
    QVERIFY(mode.job(0).exactFrames());
    mode.select({0});
    QVERIFY(mode.find<QCheckBox>("exactFramesCheckBox").isChecked());
    mode.click("exactFramesCheckBox");
    mode.job(0).saveAsDefault();
    mode.load(1);
    QVERIFY(!mode.job(1).exactFrames());
}

void BatchModeDialogTest::exactFrames_areChosenForAllSelectedJobs()
{
    ModeDialog mode;
    mode.load(3);
    mode.job(1).setExactFrames(false);
    mode.select({0, 1});
    const auto& box = mode.find<QCheckBox>("exactFramesCheckBox");
    QCOMPARE(box.checkState(), Qt::PartiallyChecked);
    mode.click("exactFramesCheckBox");
    QCOMPARE(box.checkState(), Qt::Checked);
    QVERIFY(mode.job(1).exactFrames());
    mode.click("exactFramesCheckBox");
    for (const int row : {0, 1, 2}) {
        QCOMPARE(mode.job(row).exactFrames(), row == 2);
    }
}

void BatchModeDialogTest::chosenProfile_goesIntoTheJobs()
{
    ModeDialog mode;
    mode.load(2);
    mode.choose("imageProfileComboBox", 2);
    mode.choose("filenameProfileComboBox", 2);
    QCOMPARE(mode.job(0).imageProfile()->name(), QStringLiteral("Two"));
    QCOMPARE(mode.job(1).filenameProfile()->name(), QStringLiteral("Two"));
}

void BatchModeDialogTest::chosenFileNameProfile_showsItsExample()
{
    ModeDialog mode;
    mode.load(1);
    auto& two = *static_cast<FileNameProfile*>(FileNameProfile::profileManager()->profiles().at(1));
    two.setFileOutputPrefix(QStringLiteral("two-"));
    const auto reset = qScopeGuard([&two] { two.setFileOutputPrefix(QString()); });
    mode.choose("filenameProfileComboBox", 2);
    QCOMPARE(mode.labelText("filenameOutputExampleLabel"), QStringLiteral("two-a-00001.jpeg"));
}

void BatchModeDialogTest::editButtons_needAProfile()
{
    ModeDialog mode;
    const auto& imageEdit = mode.find<QPushButton>("imageProfileEditButton");
    const auto& nameEdit = mode.find<QPushButton>("filenameProfileEditButton");
    mode.load(2);
    QVERIFY(imageEdit.isEnabled() && nameEdit.isEnabled());
    mode.select({0});
    mode.choose("imageProfileComboBox", 2);
    mode.choose("filenameProfileComboBox", 2);
    mode.select({0, 1});
    QVERIFY(!imageEdit.isEnabled() && !nameEdit.isEnabled());
}

/// The cost of a change must not grow quadratically with the jobs: the form is filled once.
void BatchModeDialogTest::manyJobs_areFilledInOnce_whenSelected()
{
    ModeDialog mode;
    QSignalSpy selections(mode.table().selectionModel(), &QItemSelectionModel::selectionChanged);
    mode.load(500);
    QCOMPARE(selections.size(), 1);
    mode.click("selectAllVideoButton");
    const QSignalSpy changes(&mode.model(), &BatchModeListModel::dataChanged);
    mode.type("skipFrontTextEdit", QStringLiteral("7"));
    QCOMPARE(changes.size(), 500);
    QCOMPARE(mode.job(499).skipFront(), 7000);
    selections.clear();
    mode.click("removeVideoButton");
    QCOMPARE(selections.size(), 1);
    QCOMPARE(mode.model().rowCount(), 0);
}

QTEST_MAIN(BatchModeDialogTest)
#include "BatchModeDialogTest.moc"
