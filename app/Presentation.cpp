#include "app/Presentation.h"

#include "app/RunningInstance.h"
#include "app/TerminationSignals.h"
#include "profiles/ReadyProfiles.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QSessionManager>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

#include <algorithm>
#include <memory>

namespace {

QIcon applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addFile(QStringLiteral(":/Images/MVIcon%1.png").arg(size), {size, size});
    }
    return icon;
}

/// Opens files that another program passes on, or comes to the front if there are none. Refuses
/// while a modal dialog is open.
RunningInstance::Opener openerIn(MainWindow& window)
{
    return [&window](const QStringList& files) {
        if (!files.isEmpty() && QApplication::activeModalWidget() != nullptr) {
            return false;
        }
        // The other program waits for the answer, which must not depend on a question to the user.
        const auto open = [&window, file = files.value(0)] {
            if (file.isEmpty()) {
                window.comeToFront();
            } else {
                window.openFromOutside(file);
            }
        };
        QMetaObject::invokeMethod(&window, open, Qt::QueuedConnection);
        return true;
    };
}

/// Tells the user something before he continues. The window remains usable.
void tell(MainWindow& window, const QStringList& news)
{
    if (news.isEmpty()) {
        return;
    }
    auto* const box =
        new QMessageBox(QMessageBox::Warning, window.windowTitle(),
                        asPlainText(news.join(QLatin1Char('\n'))), QMessageBox::Ok, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

/// Folder in which unsaved snapshots wait for the next start.
QString snapshotFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("snapshots"));
}

/// Keeps what can be kept when the desktop session ends. Qt itself would close the window, which
/// asks questions.
void followSession(MainWindow& window)
{
#if QT_VERSION_MAJOR < 6 // later versions do not close it
    QGuiApplication::setFallbackSessionManagementEnabled(false);
#endif
    const auto commit = [&window](QSessionManager& session) {
        const bool mayAsk = session.allowsInteraction();
        if (!window.prepareForSessionEnd(mayAsk)) {
            session.cancel();
        }
        if (mayAsk) {
            session.release();
        }
    };
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, commit,
                     Qt::DirectConnection);
}

} // namespace

void Presentation::applyStyleSheet(QApplication& app, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "Style not loaded";
        return;
    }
    const QByteArray bytes = file.readAll();
    const auto end = std::find(bytes.cbegin(), bytes.cend(), '\0');
    app.setStyleSheet(QString::fromLatin1(bytes.constData(), int(end - bytes.cbegin())));
}

void Presentation::centre(QWidget& widget, const QRect& screen)
{
    const QPoint middle((screen.width() - widget.width()) / 2,
                        (screen.height() - widget.height()) / 2);
    widget.move(screen.topLeft() + middle);
}

void showMainWindow(QApplication& app, const QStringList& files, const QStringList& news)
{
    Theme::instance().apply(Theme::storedIn(QSettings()));
    Presentation::applyStyleSheet(app, QStringLiteral(":/Styles.qss"));
    QApplication::setWindowIcon(applicationIcon());
    ReadyProfiles::addOnFirstStart();
    // Destroyed before the application object, because the player's threads end with it.
    const auto window = std::make_unique<MainWindow>();
    window->resize(800, 600);
    Presentation::centre(*window, QGuiApplication::primaryScreen()->geometry());
    window->restoreLayout();
    window->keepSnapshots(snapshotFolder());
    window->show();
    tell(*window, news);
    followSession(*window);
    const TerminationSignals termination([&window] { window->quitWhenKept(); });
    RunningInstance instance(openerIn(*window));
    if (!instance.listen(RunningInstance::meetingPlace())) {
        qDebug() << "Another window takes the files that are passed on";
    }
    if (!files.isEmpty()) {
        window->openVideo(files.constFirst());
    }
    QApplication::exec();
}
