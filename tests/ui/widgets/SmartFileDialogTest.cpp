#include "ui/widgets/SmartFileDialog.h"

#include "tests/ui/support/Painting.h"
#include "tests/ui/support/TestSettings.h"

#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QSettings>
#include <QTest>

using testsupport::EventCounter;
using testsupport::TestSettings;

namespace {

/// Collects the debug messages written during its lifetime.
class DebugLines
{
public:
    DebugLines()
        : m_previous(qInstallMessageHandler(&DebugLines::keep))
    {
        s_lines.clear();
    }
    ~DebugLines() { qInstallMessageHandler(m_previous); }
    DebugLines(const DebugLines&) = delete;
    DebugLines& operator=(const DebugLines&) = delete;

    static QStringList lines() { return s_lines; }

private:
    static void keep(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        if (type == QtDebugMsg) {
            s_lines += text;
        }
    }

    static inline QStringList s_lines;
    QtMessageHandler m_previous;
};

const QString& name()
{
    static const QString theName = QStringLiteral("openDialog");
    return theName;
}

QString restoreFailed()
{
    return QStringLiteral("Restore state failed");
}

QString makeFile(const TestSettings& settings, const QString& fileName)
{
    const QString path = settings.dir().filePath(fileName);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path : QString();
}

/// Selects the file and accepts, like a user. QFileDialog hides these functions of QDialog.
void accept(SmartFileDialog& dialog, const QString& file)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDirectory(QFileInfo(file).path());
    dialog.selectFile(file);
    static_cast<QDialog&>(dialog).accept();
}

} // namespace

class SmartFileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshDialog_startsInDefaultFolderAndSaysSo();
    void freshDialog_writesNothing();
    void acceptedDialog_remembersStateAndFolder();
    void cancelledDialog_remembersNothing();
    void nextDialog_startsInRememberedFolder();
    void nextDialog_startsWithRememberedState();
    void damagedState_isReported_andFolderStillRestored();
    void emptyFolder_isNotGoneTo();
    void dialogsOfOtherNames_knowNothing();
    void videoFilters_areTheseInThisOrder();
    void imageFilters_areTheseInThisOrder();
    void mainWindow_isRaisedTwice_whenDialogEnds_data();
    void mainWindow_isRaisedTwice_whenDialogEnds();
    void otherParent_isRaisedOnce_whenDialogEnds();
    void parent_isActiveAgain_whenDialogEnds();
};

void SmartFileDialogTest::freshDialog_startsInDefaultFolderAndSaysSo()
{
    const TestSettings settings;
    const DebugLines debug;
    const SmartFileDialog dialog(nullptr, name());
    QCOMPARE(DebugLines::lines(), QStringList{restoreFailed()});
    QCOMPARE(dialog.directory(), QFileDialog().directory());
}

void SmartFileDialogTest::freshDialog_writesNothing()
{
    const TestSettings settings;
    const SmartFileDialog dialog(nullptr, name());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void SmartFileDialogTest::acceptedDialog_remembersStateAndFolder()
{
    const TestSettings settings;
    const QString video = makeFile(settings, QStringLiteral("videos/a.mp4"));
    SmartFileDialog dialog(nullptr, name());
    const DebugLines debug;
    accept(dialog, video);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(DebugLines::lines(), QStringList{QStringLiteral("Saving state")});

    const QSettings written;
    QCOMPARE(written.allKeys(), (QStringList{QStringLiteral("openDialog_dialogPath"),
                                             QStringLiteral("openDialog_dialogState")}));
    QCOMPARE(written.value(QStringLiteral("openDialog_dialogPath")).toString(),
             settings.dir().filePath(QStringLiteral("videos")));
    const QByteArray state = written.value(QStringLiteral("openDialog_dialogState")).toByteArray();
    QVERIFY(QFileDialog().restoreState(state));
}

void SmartFileDialogTest::cancelledDialog_remembersNothing()
{
    const TestSettings settings;
    SmartFileDialog dialog(nullptr, name());
    dialog.setDirectory(settings.dir().path());
    const DebugLines debug;
    static_cast<QDialog&>(dialog).reject();
    QCOMPARE(DebugLines::lines(), QStringList());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void SmartFileDialogTest::nextDialog_startsInRememberedFolder()
{
    const TestSettings settings;
    const QString video = makeFile(settings, QStringLiteral("videos/a.mp4"));
    {
        SmartFileDialog dialog(nullptr, name());
        accept(dialog, video);
    }
    const DebugLines debug;
    const SmartFileDialog next(nullptr, name());
    QCOMPARE(DebugLines::lines(), QStringList());
    QCOMPARE(next.directory().absolutePath(), QFileInfo(video).path());
}

void SmartFileDialogTest::nextDialog_startsWithRememberedState()
{
    const TestSettings settings;
    const QString video = makeFile(settings, QStringLiteral("videos/a.mp4"));
    for (const QFileDialog::ViewMode mode : {QFileDialog::Detail, QFileDialog::List}) {
        {
            SmartFileDialog dialog(nullptr, name());
            dialog.setViewMode(mode);
            accept(dialog, video);
        }
        QCOMPARE(SmartFileDialog(nullptr, name()).viewMode(), mode);
    }
}

void SmartFileDialogTest::damagedState_isReported_andFolderStillRestored()
{
    const TestSettings settings;
    {
        QSettings stored;
        stored.setValue(QStringLiteral("openDialog_dialogState"), QByteArray("rubbish"));
        stored.setValue(QStringLiteral("openDialog_dialogPath"), settings.dir().path());
    }
    const DebugLines debug;
    const SmartFileDialog dialog(nullptr, name());
    QCOMPARE(DebugLines::lines(), QStringList{restoreFailed()});
    QCOMPARE(dialog.directory().absolutePath(), settings.dir().path());
}

void SmartFileDialogTest::emptyFolder_isNotGoneTo()
{
    const TestSettings settings;
    QSettings().setValue(QStringLiteral("openDialog_dialogPath"), QString());
    const SmartFileDialog dialog(nullptr, name());
    QCOMPARE(dialog.directory(), QFileDialog().directory());
}

void SmartFileDialogTest::dialogsOfOtherNames_knowNothing()
{
    const TestSettings settings;
    SmartFileDialog dialog(nullptr, name());
    accept(dialog, makeFile(settings, QStringLiteral("videos/a.mp4")));
    const DebugLines debug;
    const SmartFileDialog other(nullptr, QStringLiteral("watermarkImageDialog"));
    QCOMPARE(DebugLines::lines(), QStringList{restoreFailed()});
}

void SmartFileDialogTest::videoFilters_areTheseInThisOrder()
{
    const TestSettings settings;
    SmartFileDialog dialog(nullptr, name());
    dialog.setFiltersToVideo();
    const QStringList filters = dialog.nameFilters();
    QCOMPARE(filters.size(), 2);
    QCOMPARE(
        filters.at(0),
        QStringLiteral(
            "Video Files (*.avi *.mpeg *.mp4 *.mov *.3g2 *.3gp *.3gp2 *.3gpp *.amv *.asf *.bik "
            "*.bin *.crf *.divx *.drc *.dv *.dvr-ms *.evo *.f4v *.flv *.gvi *.gxf *.iso *.m1v "
            "*.m2v *.m2t *.m2ts *.m4v *.mkv *.mp2 *.mp2v *.mp4v *.mpe *.mpeg1 *.mpeg2 *.mpeg4 "
            "*.mpg *.mpv2 *.mts *.mtv *.mxf *.mxg *.nsv *.nuv *.ogg *.ogm *.ogv *.ogx *.ps *.rec "
            "*.rm *.rmvb *.rpl *.thp *.tod *.tp *.ts *.tts *.txd *.vob *.vro *.webm *.wm *.wmv "
            "*.wtv *.xesc)"));
    QCOMPARE(filters.at(1), QStringLiteral("All Files (*.*)"));
    QCOMPARE(dialog.selectedNameFilter(), filters.at(0));
}

void SmartFileDialogTest::imageFilters_areTheseInThisOrder()
{
    const TestSettings settings;
    SmartFileDialog dialog(nullptr, name());
    dialog.setFiltersToImage();
    QCOMPARE(dialog.nameFilters(),
             (QStringList{QStringLiteral("Image Files (*.jpeg *.jpg *.png *.gif *.tiff *.bmp)"),
                          QStringLiteral("All Files (*.*)")}));
}

void SmartFileDialogTest::mainWindow_isRaisedTwice_whenDialogEnds_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("accepted") << int(QDialog::Accepted);
    QTest::newRow("cancelled") << int(QDialog::Rejected);
}

void SmartFileDialogTest::mainWindow_isRaisedTwice_whenDialogEnds()
{
    QFETCH(int, result);
    const TestSettings settings;
    QMainWindow window;
    SmartFileDialog dialog(&window, name());
    const EventCounter raises(window, QEvent::ZOrderChange);
    dialog.dialogFinished(result);
    QCOMPARE(raises.count(), 2);
}

void SmartFileDialogTest::otherParent_isRaisedOnce_whenDialogEnds()
{
    const TestSettings settings;
    QDialog window;
    SmartFileDialog dialog(&window, name());
    const EventCounter raises(window, QEvent::ZOrderChange);
    static_cast<QDialog&>(dialog).reject();
    QCOMPARE(raises.count(), 1);
}

void SmartFileDialogTest::parent_isActiveAgain_whenDialogEnds()
{
    const TestSettings settings;
    QMainWindow window;
    window.show();
    QWidget inFront;
    inFront.show();
    inFront.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&inFront));

    SmartFileDialog dialog(&window, name());
    static_cast<QDialog&>(dialog).reject();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

QTEST_MAIN(SmartFileDialogTest)
#include "SmartFileDialogTest.moc"
