#include "app/Startup.h"

#include "batch/BatchWorker.h"
#include "product/ProductInfo.h"

#include <QtAV/QtAV_Global.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <optional>

namespace {

/// Names a runtime folder in the environment of a session that has none: a container, a batch
/// system, another user's shell.
///
/// Qt looks there, while the application object is made, for a note that it runs in a sandbox.
/// Without a folder it would warn on stderr, and make one of a name that anybody can guess. The one
/// named here is new, only its owner can enter it, and it goes with this object: what looks for
/// services there later, such as sound, must not find the place of a session that is none.
class RuntimeFolder
{
public:
    RuntimeFolder()
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
    ~RuntimeFolder()
    {
        if (m_folder) {
            qunsetenv(variable);
        }
    }
    RuntimeFolder(const RuntimeFolder&) = delete;
    RuntimeFolder& operator=(const RuntimeFolder&) = delete;

private:
    static constexpr const char* variable = "XDG_RUNTIME_DIR";

    std::optional<QTemporaryDir> m_folder;
};

} // namespace

std::unique_ptr<QApplication> Startup::makeApplication(int& argc, char** argv)
{
    const RuntimeFolder folder;
    return std::make_unique<QApplication>(argc, argv);
}

void Startup::setIdentity()
{
    QCoreApplication::setApplicationName(ProductInfo::name());
    QCoreApplication::setOrganizationName(ProductInfo::name());
    QCoreApplication::setOrganizationDomain(ProductInfo::domain());
    QCoreApplication::setApplicationVersion(ProductInfo::version());
}

void Startup::quietVideoLibrary()
{
    QtAV::setLogLevel(QtAV::LogCritical);
}

void Startup::registerMetaTypes()
{
    BatchWorker::registerMetaTypes();
}
