// Prints the languages for which a program in this one's folder has catalogues, and a German text.

#include "ui/language/Languages.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList languages = Languages::available();
    Languages::use(app, QStringLiteral("de"));
    const QString text = QCoreApplication::translate("MainWindow", "Take Snapshot");
    const QString line = languages.join(QLatin1Char(' ')) + QStringLiteral(": ") + text;
    return std::puts(line.toUtf8().constData()) < 0 ? 1 : 0;
}
