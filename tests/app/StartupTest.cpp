#include "app/Startup.h"

#include "product/ProductInfo.h"

#include <QtAV/QtAV_Global.h>

#include <QCoreApplication>
#include <QMetaType>
#include <QSettings>
#include <QTest>

class StartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identity_isTheProducts();
    void videoLibrary_writesCriticalMessagesOnly();
    void metaTypes_areRegistered();
};

void StartupTest::identity_isTheProducts()
{
    Startup::setIdentity();
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Morvantile"));
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Morvantile"));
    QCOMPARE(QCoreApplication::organizationDomain(), QStringLiteral("morvantile.example"));
    QCOMPARE(QCoreApplication::applicationVersion(), ProductInfo::version());
    QVERIFY(QSettings().fileName().contains(QStringLiteral("/Morvantile/Morvantile")));
}

void StartupTest::videoLibrary_writesCriticalMessagesOnly()
{
    QtAV::setLogLevel(QtAV::LogAll);
    Startup::quietVideoLibrary();
    QCOMPARE(QtAV::logLevel(), QtAV::LogCritical);
}

void StartupTest::metaTypes_areRegistered()
{
    Startup::registerMetaTypes();
    QVERIFY(QMetaType::type("BatchWorker::BatchStatusMessageType") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("QtAV::VideoFrame") != QMetaType::UnknownType);
}

QTEST_GUILESS_MAIN(StartupTest)
#include "StartupTest.moc"
