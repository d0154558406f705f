#include "app/Startup.h"

#include "app/RuntimeFolder.h"
#include "batch/BatchWorker.h"
#include "product/ProductInfo.h"

#include <QtAV/QtAV_Global.h>

#include <QApplication>

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
