#include "ui/widgets/VolumePopup.h"

#include "tests/ui/support/TestSettings.h"

#include <QCheckBox>
#include <QLayout>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

using testsupport::TestSettings;

namespace {

QSlider& slider(const VolumePopup& popup)
{
    return *popup.findChild<QSlider*>(QStringLiteral("volumeSlider"));
}

QCheckBox& muteBox(const VolumePopup& popup)
{
    return *popup.findChild<QCheckBox*>(QStringLiteral("muteCheckBox"));
}

void remember(const QVariant& volume, const QVariant& muted)
{
    QSettings settings;
    settings.setValue(QStringLiteral("volume"), volume);
    settings.setValue(QStringLiteral("muted"), muted);
}

QVariant remembered(const char* key)
{
    return QSettings().value(QLatin1String(key));
}

/// The values that the signal has carried so far.
QList<int> volumes(const QSignalSpy& spy)
{
    QList<int> found;
    for (const QList<QVariant>& call : spy) {
        found += call.at(0).toInt();
    }
    return found;
}

} // namespace

class VolumePopupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_isAsLaidOut();
    void window_isAFramelessPopup();
    void controls_canBeToldApart_withoutSeeingThem();
    void volume_isHalfAndNotMuted_whenNothingIsRemembered();
    void volume_isTheRemembered();
    void volume_isCut_whenRememberedOneIsOutOfRange_data();
    void volume_isCut_whenRememberedOneIsOutOfRange();
    void opening_remembersNothing();
    void volume_isZero_whileMuted();
    void unmuting_bringsVolumeBack();
    void muting_isRememberedAndReportedAsZero();
    void slider_isRememberedAndReportedAtEveryChange();
    void slider_isRememberedButReportedAsZero_whileMuted();
    void mutingByProgram_isNotReported();
    void nextPopup_startsWhereThisOneEnded();
};

void VolumePopupTest::form_isAsLaidOut()
{
    const TestSettings settings;
    const VolumePopup popup(nullptr);
    QCOMPARE(popup.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(popup.size(), QSize(69, 155));
    QCOMPARE(popup.layout()->contentsMargins().left(), 4);
    QCOMPARE(popup.layout()->contentsMargins().right(), 4);
    QCOMPARE(popup.layout()->itemAt(0)->widget(), &slider(popup));
    QCOMPARE(popup.layout()->itemAt(0)->alignment(), Qt::AlignHCenter);
    QCOMPARE(popup.layout()->itemAt(1)->widget(), &muteBox(popup));
    QCOMPARE(popup.layout()->itemAt(1)->alignment(), Qt::AlignHCenter);
    QCOMPARE(slider(popup).orientation(), Qt::Vertical);
    QCOMPARE(slider(popup).minimum(), 0);
    QCOMPARE(slider(popup).maximum(), 100);
    QCOMPARE(muteBox(popup).text(), QStringLiteral("Mute"));
}

void VolumePopupTest::window_isAFramelessPopup()
{
    const TestSettings settings;
    QWidget parent;
    const VolumePopup popup(&parent);
    QCOMPARE(popup.windowType(), Qt::Popup);
    QVERIFY(popup.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(popup.frameStyle(), int(QFrame::WinPanel) | int(QFrame::Raised));
    QVERIFY(!popup.isVisible());
}

void VolumePopupTest::controls_canBeToldApart_withoutSeeingThem()
{
    const TestSettings settings;
    const VolumePopup popup(nullptr);
    QCOMPARE(slider(popup).accessibleName(), QStringLiteral("Volume"));
}

void VolumePopupTest::volume_isHalfAndNotMuted_whenNothingIsRemembered()
{
    const TestSettings settings;
    VolumePopup popup(nullptr);
    QCOMPARE(popup.volume(), 50);
    QCOMPARE(slider(popup).value(), 50);
    QVERIFY(!muteBox(popup).isChecked());
}

void VolumePopupTest::volume_isTheRemembered()
{
    const TestSettings settings;
    remember(73, false);
    QCOMPARE(VolumePopup(nullptr).volume(), 73);
}

void VolumePopupTest::volume_isCut_whenRememberedOneIsOutOfRange_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("volume");
    QTest::newRow("too high") << QVariant(250) << 100;
    QTest::newRow("too low") << QVariant(-5) << 0;
    QTest::newRow("no number") << QVariant(QStringLiteral("loud")) << 0;
}

void VolumePopupTest::volume_isCut_whenRememberedOneIsOutOfRange()
{
    QFETCH(QVariant, stored);
    QFETCH(int, volume);
    const TestSettings settings;
    remember(stored, false);
    QCOMPARE(VolumePopup(nullptr).volume(), volume);
}

void VolumePopupTest::opening_remembersNothing()
{
    const TestSettings settings;
    const VolumePopup popup(nullptr);
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void VolumePopupTest::volume_isZero_whileMuted()
{
    const TestSettings settings;
    remember(30, true);
    VolumePopup popup(nullptr);
    QCOMPARE(popup.volume(), 0);
    QCOMPARE(slider(popup).value(), 30);
    QVERIFY(muteBox(popup).isChecked());
}

void VolumePopupTest::unmuting_bringsVolumeBack()
{
    const TestSettings settings;
    remember(30, true);
    VolumePopup popup(nullptr);
    const QSignalSpy spy(&popup, &VolumePopup::volumeChanged);
    muteBox(popup).click();
    QCOMPARE(volumes(spy), QList<int>{30});
    QCOMPARE(popup.volume(), 30);
    QCOMPARE(remembered("muted"), QVariant(false));
    QCOMPARE(remembered("volume").toInt(), 30);
}

void VolumePopupTest::muting_isRememberedAndReportedAsZero()
{
    const TestSettings settings;
    VolumePopup popup(nullptr);
    const QSignalSpy spy(&popup, &VolumePopup::volumeChanged);
    muteBox(popup).click();
    QCOMPARE(volumes(spy), QList<int>{0});
    QCOMPARE(popup.volume(), 0);
    QVERIFY(remembered("muted").toBool());
    QVERIFY(!QSettings().contains(QStringLiteral("volume")));
}

void VolumePopupTest::slider_isRememberedAndReportedAtEveryChange()
{
    const TestSettings settings;
    VolumePopup popup(nullptr);
    const QSignalSpy spy(&popup, &VolumePopup::volumeChanged);
    slider(popup).setValue(60);
    QCOMPARE(remembered("volume").toInt(), 60);
    slider(popup).setValue(61);
    QCOMPARE(remembered("volume").toInt(), 61);
    slider(popup).setValue(61);
    QCOMPARE(volumes(spy), (QList<int>{60, 61}));
}

void VolumePopupTest::slider_isRememberedButReportedAsZero_whileMuted()
{
    const TestSettings settings;
    remember(30, true);
    VolumePopup popup(nullptr);
    const QSignalSpy spy(&popup, &VolumePopup::volumeChanged);
    slider(popup).setValue(80);
    QCOMPARE(volumes(spy), QList<int>{0});
    QCOMPARE(remembered("volume").toInt(), 80);
}

void VolumePopupTest::mutingByProgram_isNotReported()
{
    const TestSettings settings;
    VolumePopup popup(nullptr);
    const QSignalSpy spy(&popup, &VolumePopup::volumeChanged);
    muteBox(popup).setChecked(true);
    QCOMPARE(spy.count(), 0);
    QVERIFY(!QSettings().contains(QStringLiteral("muted")));
}

void VolumePopupTest::nextPopup_startsWhereThisOneEnded()
{
    const TestSettings settings;
    {
        const VolumePopup popup(nullptr);
        slider(popup).setValue(17);
        muteBox(popup).click();
    }
    const VolumePopup next(nullptr);
    QCOMPARE(slider(next).value(), 17);
    QVERIFY(muteBox(next).isChecked());
}

QTEST_MAIN(VolumePopupTest)
#include "VolumePopupTest.moc"
