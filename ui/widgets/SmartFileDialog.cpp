#include "ui/widgets/SmartFileDialog.h"

#include <QDebug>
#include <QMainWindow>
#include <QSettings>

#include <utility>

namespace {

QString patternsOfVideos()
{
    return QStringLiteral(
        "*.avi *.mpeg *.mp4 *.mov *.3g2 *.3gp *.3gp2 *.3gpp *.amv *.asf *.bik *.bin *.crf *.divx "
        "*.drc *.dv *.dvr-ms *.evo *.f4v *.flv *.gvi *.gxf *.iso *.m1v *.m2v *.m2t *.m2ts *.m4v "
        "*.mkv *.mp2 *.mp2v *.mp4v *.mpe *.mpeg1 *.mpeg2 *.mpeg4 *.mpg *.mpv2 *.mts *.mtv *.mxf "
        "*.mxg *.nsv *.nuv *.ogg *.ogm *.ogv *.ogx *.ps *.rec *.rm *.rmvb *.rpl *.thp *.tod *.tp "
        "*.ts *.tts *.txd *.vob *.vro *.webm *.wm *.wmv *.wtv *.xesc");
}

QString imagePatterns()
{
    return QStringLiteral("*.jpeg *.jpg *.png *.gif *.tiff *.bmp");
}

QStringList filters(const QString& kind, const QString& patterns)
{
    return {kind + QStringLiteral(" (") + patterns + QLatin1Char(')'),
            SmartFileDialog::tr("All Files") + QStringLiteral(" (*.*)")};
}

void bringToFront(QWidget* window)
{
    window->raise();
    window->activateWindow();
}

} // namespace

SmartFileDialog::SmartFileDialog(QWidget* parent, QString name)
    : QFileDialog(parent)
    , m_name(std::move(name))
{
    restoreSettings();
    connect(this, &QDialog::finished, this, &SmartFileDialog::dialogFinished);
}

QStringList SmartFileDialog::videoPatterns()
{
    return patternsOfVideos().split(QLatin1Char(' '));
}

void SmartFileDialog::setFiltersToVideo()
{
    setNameFilters(filters(tr("Video Files"), patternsOfVideos()));
}

void SmartFileDialog::setFiltersToImage()
{
    setNameFilters(filters(tr("Image Files"), imagePatterns()));
}

void SmartFileDialog::saveSettings()
{
    qDebug("Saving state");
    QSettings settings;
    settings.setValue(stateKey(), saveState());
    settings.setValue(pathKey(), directory().absolutePath());
}

void SmartFileDialog::dialogFinished(int result)
{
    if (result == Accepted) {
        saveSettings();
    }
    // Both calls are made twice for a main window: some window managers ignore the first request,
    // which arrives while the dialog is still closing.
    if (auto* window = qobject_cast<QMainWindow*>(parent())) {
        bringToFront(window);
    }
    if (QWidget* widget = parentWidget()) {
        bringToFront(widget);
    }
}

void SmartFileDialog::restoreSettings()
{
    const QSettings settings;
    if (!restoreState(settings.value(stateKey()).toByteArray())) {
        qDebug("Restore state failed");
    }
    const QString path = settings.value(pathKey()).toString();
    if (!path.isEmpty()) {
        setDirectory(path);
    }
}

QString SmartFileDialog::stateKey() const
{
    return m_name + QStringLiteral("_dialogState");
}

QString SmartFileDialog::pathKey() const
{
    return m_name + QStringLiteral("_dialogPath");
}
