#include "app/RuntimeFolder.h"

#include <QDir>
#include <QFile>

namespace {

constexpr const char* variable = "XDG_RUNTIME_DIR";

} // namespace

RuntimeFolder::RuntimeFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (!qEnvironmentVariableIsEmpty(variable)) {
        return;
    }
    m_folder.emplace(QDir::tempPath() + QStringLiteral("/morvantile-XXXXXX"));
    if (m_folder->isValid()) {
        qputenv(variable, QFile::encodeName(m_folder->path()));
    }
#endif
}

RuntimeFolder::~RuntimeFolder()
{
    if (m_folder) {
        qunsetenv(variable);
    }
}
