#include "ui/dialogs/AboutDialog.h"

#include "product/ProductInfo.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QPixmap>
#include <QTest>

namespace {

QLabel& label(const AboutDialog& dialog, const char* name)
{
    return *dialog.findChild<QLabel*>(QLatin1String(name));
}

QStringList texts(const AboutDialog& dialog)
{
    QStringList found;
    const auto labels = dialog.findChildren<QLabel*>();
    for (const QLabel* one : labels) {
        found += one->text();
    }
    return found;
}

} // namespace

class AboutDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_sayWhatItIs();
    void version_isTheProducts_notTheApplicationObjects();
    void links_leadToTheProductsAddresses();
    void links_canBeReachedByKeyboard();
    void icon_isTheApplications();
    void window_hasFixedSizeAndNoHelpButton();
};

void AboutDialogTest::texts_sayWhatItIs()
{
    const AboutDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("About Morvantile"));
    const QStringList all = texts(dialog);
    QVERIFY(all.contains(QStringLiteral("Morvantile - Video Frame Capture Software")));
    QVERIFY(all.contains(QStringLiteral("Please send me your questions or feature suggestions!")));
}

void AboutDialogTest::version_isTheProducts_notTheApplicationObjects()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("9.9"));
    const AboutDialog dialog(nullptr);
    QCOMPARE(label(dialog, "versionLabel").text(),
             QLatin1String("Version: ") + ProductInfo::version());
}

void AboutDialogTest::links_leadToTheProductsAddresses()
{
    const AboutDialog dialog(nullptr);
    const QLabel& web = label(dialog, "webLinkLabel");
    QCOMPARE(web.text(),
             QStringLiteral("<a href=\"https://morvantile.example/\">morvantile.example</a>"));
    QVERIFY(web.openExternalLinks());
    const QLabel& mail = label(dialog, "mailLinkLabel");
    QCOMPARE(mail.text(), QStringLiteral("<a href=\"mailto:support@morvantile.example\">"
                                         "support@morvantile.example</a>"));
    QVERIFY(mail.openExternalLinks());
}

void AboutDialogTest::links_canBeReachedByKeyboard()
{
    const AboutDialog dialog(nullptr);
    for (const char* name : {"webLinkLabel", "mailLinkLabel"}) {
        const QLabel& link = label(dialog, name);
        QVERIFY2(link.textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard), name);
        QVERIFY2((link.focusPolicy() & Qt::TabFocus) != 0, name);
    }
}

void AboutDialogTest::icon_isTheApplications()
{
    const AboutDialog dialog(nullptr);
    const QLabel& icon = label(dialog, "iconLabel");
    const QPixmap shown = icon.pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.size(), QSize(1024, 1024));
    QCOMPARE(shown.toImage(), QPixmap(QStringLiteral(":/Images/MVIcon1024.png")).toImage());
    QVERIFY(!icon.accessibleName().isEmpty());
    // Not at its own size, which would fill the screen.
    QVERIFY(icon.hasScaledContents());
    QCOMPARE(icon.maximumSize(), QSize(128, 128));
}

void AboutDialogTest::window_hasFixedSizeAndNoHelpButton()
{
    AboutDialog dialog(nullptr);
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.layout()->sizeConstraint(), QLayout::SetFixedSize);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.minimumSize(), dialog.sizeHint());
    QCOMPARE(dialog.maximumSize(), dialog.sizeHint());
}

QTEST_MAIN(AboutDialogTest)
#include "AboutDialogTest.moc"
