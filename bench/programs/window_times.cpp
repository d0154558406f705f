// Uses the main window like a person, with a video, and prints for each action how long single
// events occupied the user-interface thread: how many took longer than 50 ms, and which took
// longest, with the part of that time for which the thread had a processor. Exits with 1 if one
// took longer.

#include "app/MemoryPolicy.h"
#include "app/Startup.h"
#include "bench/support/EventTimes.h"
#include "bench/support/Sandbox.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/batch/BatchProcessingDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/dialogs/WatermarkProfileDialog.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <QWheelEvent>

#include <cstdio>
#include <functional>

namespace {

constexpr int limitMs = 120000;

class User
{
public:
    User(bench::EventTimes& app, const bench::Sandbox& sandbox)
        : m_app(app)
        , m_sandbox(sandbox)
    {
        m_window.resize(1600, 900);
        m_window.keepSnapshots(sandbox.filePath(QStringLiteral("kept")));
        m_window.show();
        wait(500);
    }

    bool useAll(const QString& video)
    {
        doing("open and play", [&] {
            m_window.openVideo(video);
            waitUntil([this] { return player().displayPosition() > 1000; });
        });
        doing("play", [this] { wait(4000); });
        doing("play, pictures beside the slider", [this] { hover(); });
        doing("play, best frames", [this] { findBest(); });
        doing("play, zoom the video", [this] { turnWheel("openVideoLabel"); });
        m_window.pause();
        doing("step", [this] {
            for (int i = 0; i < 20; ++i) {
                m_window.stepForward();
                wait(50);
            }
        });
        doing("take snapshots", [this] {
            for (int i = 1; i <= 3; ++i) {
                m_window.snapshotButtonPressed();
                waitUntil([this, i] { return strip().shelf().rowCount() == i; });
                m_window.stepForward();
                wait(500);
            }
        });
        doing("original size", [this] {
            find<QPushButton>("originalSizeButton").click();
            wait(1000);
        });
        doing("take snapshots in original size", [this] {
            for (int i = 4; i <= 6; ++i) {
                m_window.snapshotButtonPressed();
                waitUntil([this, i] { return strip().shelf().rowCount() == i; });
                m_window.stepForward();
                wait(500);
            }
        });
        doing("choose image profiles", [this] { chooseProfiles(); });
        doing("edit an image profile", [this] { editProfile(); });
        doing("edit a watermark", [this] { editWatermark(); });
        doing("compare filters", [this] { compareFilters(); });
        doing("zoom the snapshot", [this] { turnWheel("snapshotImageView"); });
        doing("resize the window", [this] { resize(); });
        doing("go back to a snapshot", [this] {
            // The last but one, which has the video's own size and is saved then.
            const QModelIndex index = strip().shelf().index(strip().shelf().rowCount() - 2);
            Q_EMIT strip().chosen(index.data(SnapshotShelf::IdRole).toString());
            wait(2000);
        });
        doing("save as JPEG", [this] { saveAutomatically(); });
        doing("save as PNG", [this] { save(QStringLiteral("a.png")); });
        doing("save as TIFF", [this] { save(QStringLiteral("a.tiff")); });
        doing("copy", [this] {
            find<QAction>("actionCopy_Snapshot").trigger();
            wait(200);
        });
        doing("save all", [this] {
            find<QPushButton>("saveAllButton").click();
            waitUntil([this] { return strip().shelf().unsaved().isEmpty(); });
        });
        player().play();
        doing("play, batch", [&] { runBatch(video); });
        doing("open another", [&] {
            m_window.openVideo(video);
            waitUntil([this] { return player().displayPosition() > 500; });
        });
        return !m_isSlow;
    }

private:
    template <typename Object>
    Object& find(const char* name)
    {
        auto* const found = m_window.findChild<Object*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s in the window", name);
        }
        return *found;
    }

    QtAV::AVPlayer& player() { return *m_window.findChild<QtAV::AVPlayer*>(); }
    Filmstrip& strip() { return *m_window.findChild<Filmstrip*>(); }

    /// Runs an action as an event of the loop, like one by a person.
    void doing(const char* what, const std::function<void()>& task)
    {
        wait(300);
        static_cast<void>(m_app.take());
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            task();
            loop.quit();
        });
        loop.exec();
        const bench::EventTimes::Summary summary = m_app.take();
        m_isSlow = m_isSlow || summary.above > 0;
        std::printf("%-34s %6d events, %2d above %.0f ms\n", what, summary.events, summary.above,
                    bench::EventTimes::limitMs);
        for (const bench::EventTimes::Work& work : summary.longest) {
            std::printf("    %7.1f ms, processor %6.1f ms  %s\n", work.ms, work.processorMs,
                        work.what.c_str());
        }
        std::fflush(stdout);
    }

    static void wait(int ms)
    {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    static void waitUntil(const std::function<bool()>& isThere)
    {
        QElapsedTimer timer;
        timer.start();
        while (!isThere()) {
            if (timer.hasExpired(limitMs)) {
                qFatal("it does not come");
            }
            wait(20);
        }
    }

    void hover()
    {
        auto& slider = find<QSlider>("videoSlider");
        for (int x = 10; x < slider.width() - 10; x += 40) {
            const QPointF at(x, slider.height() / 2.0);
            QMouseEvent move(QEvent::MouseMove, at, slider.mapToGlobal(at.toPoint()), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&slider, &move);
            wait(100);
        }
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&slider, &leave);
    }

    void findBest()
    {
        m_window.proposeBestFramesHere();
        player().play();
        auto& list = find<QListWidget>("bestFramesList");
        waitUntil([&list] { return list.count() > 0; });
        list.window()->close();
    }

    void turnWheel(const char* name)
    {
        auto& area = find<QWidget>(name);
        const QPointF at = QRectF(area.rect()).center();
        for (int i = 0; i < 24; ++i) {
            const int angle = i < 12 ? 120 : -120;
            QWheelEvent turn(at, area.mapToGlobal(at.toPoint()), {}, {0, angle}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&area, &turn);
            wait(40);
        }
    }

    void chooseProfiles()
    {
        auto& box = find<QComboBox>("imageProfileComboBox");
        const int before = box.currentIndex();
        for (int i = 0; i < box.count(); ++i) {
            box.setCurrentIndex(i);
            m_window.on_imageProfileComboBox_activated(i);
            wait(800);
        }
        box.setCurrentIndex(before);
        m_window.on_imageProfileComboBox_activated(before);
        wait(800);
    }

    /// Does something in the dialog that opening it brings up, and closes that.
    template <typename Dialog>
    void inDialog(const std::function<void()>& open, const std::function<void(Dialog&)>& act)
    {
        QTimer::singleShot(500, &m_window, [&act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                qFatal("the dialog does not open");
            }
            act(*dialog);
            dialog->reject();
        });
        open();
    }

    static void slide(QDialog& dialog, const char* slider)
    {
        for (const int value : {10, 20, 30}) {
            dialog.findChild<QSlider*>(QLatin1String(slider))->setValue(value);
            wait(800);
        }
    }

    void editProfile()
    {
        inDialog<ImageProfileDialog>(
            [this] { find<QPushButton>("editImageProfileButton").click(); },
            [](ImageProfileDialog& dialog) {
                slide(dialog, "brightnessSlider");
                dialog.resize(dialog.size() + QSize(40, 20));
                wait(800);
            });
    }

    void editWatermark()
    {
        const auto edit = [this](ImageProfileDialog& profile) {
            const auto open = [&profile] {
                profile.findChild<QPushButton*>(QStringLiteral("watermarkProfileEditButton"))
                    ->click();
            };
            inDialog<WatermarkProfileDialog>(
                open, [](WatermarkProfileDialog& dialog) { slide(dialog, "alphaSlider"); });
        };
        inDialog<ImageProfileDialog>(
            [this] { find<QPushButton>("editImageProfileButton").click(); }, edit);
    }

    void compareFilters()
    {
        inDialog<ImageFiltersDialog>(
            [this] { find<QAction>("actionImage_Filters_Test").trigger(); },
            [](ImageFiltersDialog& dialog) { slide(dialog, "brightnessSlider"); });
    }

    void resize()
    {
        for (int i = 0; i < 10; ++i) {
            m_window.resize(1600 - 40 * i, 900 - 20 * i);
            wait(50);
        }
    }

    void saveAutomatically()
    {
        find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
        find<QLineEdit>("outputFolderLineEdit").setText(m_sandbox.filePath(QString()));
        m_window.saveButtonPressed();
        wait(1500);
    }

    void save(const QString& name)
    {
        static_cast<void>(m_window.saveSnapshot(m_sandbox.filePath(name)));
        wait(500);
    }

    /// Also uses the dialogs of batch mode, pressing their buttons when they appear.
    void runBatch(const QString& video)
    {
        QTimer presses;
        bool isStarted = false;
        QObject::connect(&presses, &QTimer::timeout, &m_window, [&] {
            auto* const modal = QApplication::activeModalWidget();
            if (auto* const running = qobject_cast<BatchProcessingDialog*>(modal)) {
                auto* const button = running->findChild<QPushButton*>(QStringLiteral("doneButton"));
                if (button->text() == QStringLiteral("Done")) {
                    button->click();
                }
            } else if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
                std::printf("    (%s)\n", qPrintable(box->text()));
                box->accept();
            } else if (auto* const mode = qobject_cast<BatchModeDialog*>(modal)) {
                player().play();
                if (mode->isLoading()) {
                    return;
                }
                if (!std::exchange(isStarted, true)) {
                    mode->findChild<QRadioButton*>(QStringLiteral("intervalImagesRadioButton"))
                        ->click();
                    auto* const count =
                        mode->findChild<QLineEdit*>(QStringLiteral("intervalImagesTextEdit"));
                    count->setText(QStringLiteral("12"));
                    // Not in this call, during which the timer does not fire.
                    QTimer::singleShot(0,
                                       mode->findChild<QPushButton*>(QStringLiteral("startButton")),
                                       &QPushButton::click);
                } else {
                    mode->reject();
                }
            }
        });
        presses.start(100);
        BatchModeDialog dialog(&m_window);
        dialog.loadVideos({video});
        dialog.exec();
    }

    bench::EventTimes& m_app;
    const bench::Sandbox& m_sandbox;
    MainWindow m_window;
    bool m_isSlow = false;
};

} // namespace

int main(int argc, char** argv)
{
    const bench::Sandbox sandbox(bench::Sandbox::Display::None);
    MemoryPolicy::returnFreedMemory();
    bench::EventTimes app(argc, argv);
    Startup::setIdentity();
    Startup::quietVideoLibrary();
    Startup::registerMetaTypes();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: window_times VIDEO\n");
        return 2;
    }
    // Pictures are saved beside the video.
    const QFileInfo video(arguments.at(1));
    const QString link = sandbox.filePath(QStringLiteral("video.") + video.suffix());
    if (!QFile::link(video.absoluteFilePath(), link)) {
        std::fprintf(stderr, "cannot link %s\n", qPrintable(link));
        return 2;
    }
    User user(app, sandbox);
    return user.useAll(link) ? 0 : 1;
}
