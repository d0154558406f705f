#include "app/Startup.h"

#include "batch/BatchWorker.h"
#include "product/ProductInfo.h"

#include <QtAV/QtAV_Global.h>

#include <QCoreApplication>

#include <csignal>

void Startup::setIdentity()
{
    QCoreApplication::setApplicationName(ProductInfo::name());
    QCoreApplication::setOrganizationName(ProductInfo::name());
    QCoreApplication::setOrganizationDomain(ProductInfo::domain());
    QCoreApplication::setApplicationVersion(ProductInfo::version());
}

void Startup::makeSignalsErrors()
{
    for (const int number : {SIGPIPE, SIGXFSZ}) {
        static_cast<void>(std::signal(number, SIG_IGN));
    }
}

void Startup::quietVideoLibrary()
{
    QtAV::setLogLevel(QtAV::LogCritical);
}

void Startup::registerMetaTypes()
{
    BatchWorker::registerMetaTypes();
}
