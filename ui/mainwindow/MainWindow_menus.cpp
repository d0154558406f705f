#include "ui/mainwindow/MainWindow.h"

#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/mainwindow/UserGuide.h"

#include <QDesktopServices>

void MainWindow::on_actionImage_Filters_Test_triggered()
{
    pause();
    ImageFiltersDialog(this).exec();
    retakeFocusAfterDialog();
}

void MainWindow::on_actionAbout_triggered()
{
    AboutDialog(this).exec();
    retakeFocusAfterDialog();
}

void MainWindow::on_actionDocumentation_triggered()
{
    QDesktopServices::openUrl(UserGuide::url());
}

void MainWindow::on_actionCommandLineOptions_triggered()
{
    QDesktopServices::openUrl(UserGuide::url(QStringLiteral("command-line")));
}
