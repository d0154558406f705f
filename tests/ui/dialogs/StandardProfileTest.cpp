#include "profiles/ImageProfile.h"
#include "profiles/ProfileNames.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "ui/dialogs/ImageProfileDialog.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

using testsupport::child;
using testsupport::TestProfiles;

/// The profile that is created if there is none, whose stored name is not meant for people.
class StandardProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void name_isShownAsStandard_andStoredAsEver();
    void otherNames_areShownAsTheyAre();
    void dialog_savesIt_underItsStoredName();
};

void StandardProfileTest::name_isShownAsStandard_andStoredAsEver()
{
    ImageProfile profile(nullptr);
    profile.setName(QStringLiteral("[Unnamed Settings]"));
    QCOMPARE(profile.name(), ProfileNames::storedStandard());
    QCOMPARE(profile.shownName(), QStringLiteral("Standard"));
}

void StandardProfileTest::otherNames_areShownAsTheyAre()
{
    for (const char* const name : {"", "Mine", "Unnamed Settings", "[Unnamed Settings] copy"}) {
        QCOMPARE(ProfileNames::shown(QString::fromLatin1(name)), QString::fromLatin1(name));
    }
}

void StandardProfileTest::dialog_savesIt_underItsStoredName()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(ProfileNames::storedStandard());
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), QStringLiteral("Standard"));
    child<QSpinBox>(dialog, "jpegQualitySpinBox").setValue(77);
    child<QPushButton>(dialog, "saveButton").click();
    QCOMPARE(dialog.selectedProfile(), &profile);
    QCOMPARE(profile.imageQuality(), 77);
    QCOMPARE(profile.name(), ProfileNames::storedStandard());
}

QTEST_MAIN(StandardProfileTest)
#include "StandardProfileTest.moc"
