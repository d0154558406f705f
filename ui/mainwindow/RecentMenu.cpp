#include "ui/mainwindow/RecentMenu.h"

#include "ui/mainwindow/RecentFiles.h"
#include "ui/widgets/PlainText.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>

RecentMenu::RecentMenu(QSettings& settings, QWidget* parent)
    : QMenu(tr("Open Recent"), parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("menuOpenRecent"));
    setToolTipsVisible(true);
    setEnabled(!RecentFiles::in(m_settings).isEmpty());
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

/// Missing files are not offered but kept: their disk may be plugged in again.
void RecentMenu::fill()
{
    clear();
    const QStringList files = RecentFiles::present(RecentFiles::in(m_settings));
    for (const QString& file : files) {
        QString name = QFileInfo(file).fileName();
        QAction* const action = addAction(name.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setToolTip(asPlainText(QDir::toNativeSeparators(file)));
        connect(action, &QAction::triggered, this, [this, file] { Q_EMIT chosen(file); });
    }
    if (isEmpty()) {
        addAction(tr("None of them is there"))->setEnabled(false);
    }
    addSeparator();
    connect(addAction(tr("Clear List")), &QAction::triggered, this, &RecentMenu::forgetAll);
}

void RecentMenu::forgetAll()
{
    RecentFiles::clear(m_settings);
    setEnabled(false);
}

void RecentMenu::note(const QString& path)
{
    RecentFiles::add(m_settings, path);
    setEnabled(true);
}
