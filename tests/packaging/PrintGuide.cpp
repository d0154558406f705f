// Prints the URL of the user guide, as found by a program in this one's folder.

#include "ui/mainwindow/UserGuide.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    return std::puts(UserGuide::url().toString().toUtf8().constData()) < 0 ? 1 : 0;
}
