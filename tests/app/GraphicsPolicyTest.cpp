#include "app/GraphicsPolicy.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr const char* integration = "QT_XCB_GL_INTEGRATION";

bool addDevice(const QTemporaryDir& devices, const char* name)
{
    QFile device(devices.filePath(QString::fromLatin1(name)));
    return device.open(QIODevice::WriteOnly);
}

} // namespace

class GraphicsPolicyTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void graphicsDevice_isSeen_byItsFile();
    void openGL_isAvoided_withoutAGraphicsDevice();
    void openGL_isLeftToQt_withAGraphicsDevice();
    void environment_decides_whereItSaysAnything();
};

void GraphicsPolicyTest::init()
{
    qunsetenv(integration);
}

void GraphicsPolicyTest::graphicsDevice_isSeen_byItsFile()
{
    for (const char* name : {"dri", "nvidiactl", "dxg"}) {
        const QTemporaryDir devices;
        QVERIFY(devices.isValid());
        QVERIFY(!GraphicsPolicy::hasGraphicsDevice(devices.path()));
        QVERIFY(addDevice(devices, name));
        QVERIFY(GraphicsPolicy::hasGraphicsDevice(devices.path()));
    }
    QVERIFY(!GraphicsPolicy::hasGraphicsDevice(QStringLiteral("/no such folder")));
}

void GraphicsPolicyTest::openGL_isAvoided_withoutAGraphicsDevice()
{
    const QTemporaryDir devices;
    QVERIFY(devices.isValid());
    GraphicsPolicy::avoidImitatedOpenGL(devices.path());
    QCOMPARE(qgetenv(integration), QByteArray("none"));
}

void GraphicsPolicyTest::openGL_isLeftToQt_withAGraphicsDevice()
{
    const QTemporaryDir devices;
    QVERIFY(devices.isValid());
    QVERIFY(addDevice(devices, "dri"));
    GraphicsPolicy::avoidImitatedOpenGL(devices.path());
    QVERIFY(!qEnvironmentVariableIsSet(integration));
}

void GraphicsPolicyTest::environment_decides_whereItSaysAnything()
{
    const QTemporaryDir devices;
    QVERIFY(devices.isValid());
    qputenv(integration, "xcb_glx");
    GraphicsPolicy::avoidImitatedOpenGL(devices.path());
    QCOMPARE(qgetenv(integration), QByteArray("xcb_glx"));
}

QTEST_GUILESS_MAIN(GraphicsPolicyTest)
#include "GraphicsPolicyTest.moc"
