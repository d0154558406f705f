#include "bench/support/Sandbox.h"

#include <QtAV/QtAV_Global.h>

#include <QFile>
#include <QLoggingCategory>

namespace bench {

Sandbox::Sandbox(Display display)
{
    if (!m_folder.isValid()) {
        qFatal("No temporary folder: %s", qUtf8Printable(m_folder.errorString()));
    }
    if (display == Display::None) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path()));
    for (const char* const variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(variable, QFile::encodeName(m_folder.filePath(QString::fromLatin1(variable))));
    }
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QtAV::setLogLevel(QtAV::LogCritical);
}

} // namespace bench
