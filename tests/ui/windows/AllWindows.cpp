#include "tests/ui/windows/AllWindows.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/Samples.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "tests/ui/mainwindow/OpenWindow.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/batch/BatchProcessingDialog.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/dialogs/WatermarkProfileDialog.h"
#include "ui/mainwindow/BestFramesDialog.h"
#include "ui/mainwindow/Shortcuts.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/VolumePopup.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace testsupport {

namespace {

const QString sample = QStringLiteral("h264_bframes.mp4");

void visitPages(QWidget& window, const WindowVisitor& visit)
{
    auto* const tabs = window.findChild<QTabWidget*>();
    if (tabs == nullptr) {
        // The latest texts may need a new layout.
        QCoreApplication::processEvents();
        visit(window);
        return;
    }
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        visit(window);
    }
}

void show(QWidget& window, const WindowVisitor& visit)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        qFatal("%s does not get the keyboard", qPrintable(nameOf(window)));
    }
    visitPages(window, visit);
    window.hide();
}

void visitDialogs(const WindowVisitor& visit)
{
    const TestProfiles profiles;
    const QString name = QStringLiteral("mine");
    auto& imageProfile = profiles.add<ImageProfile>(name);
    ImageProfileDialog image(nullptr);
    image.setSelectedProfile(&imageProfile);
    show(image, visit);
    WatermarkProfileDialog watermark(nullptr);
    watermark.setSelectedProfile(&profiles.add<WatermarkProfile>(name));
    show(watermark, visit);
    FileNameProfileDialog fileName(nullptr);
    fileName.setSelectedProfile(&profiles.add<FileNameProfile>(name));
    show(fileName, visit);
    ImageFiltersDialog filters(nullptr);
    filters.setProfile(&imageProfile);
    show(filters, visit);
    BatchModeDialog emptyBatch(nullptr);
    show(emptyBatch, visit);
    BatchModeDialog batch(nullptr);
    batch.loadStretch(samplePath(sample), 0, 0);
    const auto* const table = batch.findChild<QTableView*>();
    if (!QTest::qWaitFor([table] { return table->model()->rowCount() > 0; })) {
        qFatal("the batch has no video");
    }
    batch.findChild<QTableView*>()->selectAll();
    show(batch, visit);
    BatchProcessingDialog processing(nullptr);
    show(processing, visit);
    AboutDialog about(nullptr);
    show(about, visit);
    BestFramesDialog best(nullptr);
    show(best, visit);
}

bool isInner(const QWidget& widget)
{
    const QWidget* const parent = widget.parentWidget();
    const bool isOfField = qobject_cast<const QComboBox*>(parent) != nullptr ||
                           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
    return isOfField || widget.objectName().startsWith(QLatin1String("qt_")) ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr ||
           qobject_cast<const QHeaderView*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(parent) != nullptr ||
           widget.inherits("QTabBar") || qobject_cast<const QMenuBar*>(parent) != nullptr;
}

bool isControl(const QWidget& widget)
{
    const auto* const box = qobject_cast<const QGroupBox*>(&widget);
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSlider*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr ||
           (box != nullptr && box->isCheckable());
}

} // namespace

void visitMainWindow(const WindowVisitor& visit)
{
    const TestProfiles profiles;
    // Before the window, which needs one of each.
    profiles.add<ImageProfile>(QStringLiteral("other mine"));
    profiles.add<FileNameProfile>(QStringLiteral("other mine"));
    OpenWindow window;
    if (!window.openPaused(window.copyOf(sample, sample)) || !window.takeSnapshot()) {
        qFatal("no snapshot in the main window");
    }
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    window->activateWindow();
    visitPages(window.window(), visit);
    QTimer::singleShot(0, qApp, [&visit] {
        QWidget* const page = QApplication::activeModalWidget();
        if (!QTest::qWaitForWindowActive(page)) {
            qFatal("the page of keys does not show");
        }
        visitPages(*page, visit);
        page->close();
    });
    Shortcuts::showPage(window.window(), *window.window().menuBar());
    VolumePopup volume(&window.window());
    volume.show();
    visitPages(volume, visit);
    volume.hide();
}

void visitAllWindows(const WindowVisitor& visit)
{
    visitMainWindow(visit);
    visitDialogs(visit);
}

void useProgramsLooks()
{
    Theme::instance().apply(Theme::Choice::Dark);
    QFile style(QStringLiteral(":/Styles.qss"));
    if (!style.open(QIODevice::ReadOnly)) {
        qFatal("There is no style sheet");
    }
    qApp->setStyleSheet(QString::fromLatin1(style.readAll()));
}

QList<QWidget*> controlsOf(const QWidget& window)
{
    QList<QWidget*> controls;
    const auto widgets = window.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (widget->isVisibleTo(&window) && widget->window() == &window && isControl(*widget) &&
            !isInner(*widget)) {
            controls += widget;
        }
    }
    return controls;
}

QString nameOf(const QWidget& widget)
{
    const QString name = widget.objectName();
    return QString::fromLatin1(widget.metaObject()->className()) + QLatin1Char(' ') +
           (name.isEmpty() && widget.parentWidget() != nullptr ? widget.parentWidget()->objectName()
                                                               : name);
}

} // namespace testsupport
