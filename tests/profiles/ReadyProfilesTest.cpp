#include "profiles/ReadyProfiles.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/profiles/ManagerCases.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QMetaProperty>
#include <QSettings>
#include <QTest>

class ReadyProfilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void profiles_areAdded_andTheLastUsedOneStays();
    void profile_isNotAdded_whenItsNameIsTaken();
    void deletedProfile_doesNotComeBack_atTheNextStart();
    void originalSize_isTheProfileItself_whenItKeepsTheSize();
    void originalSize_isAListedProfile_onlyWhenAllElseIsTheSame();
    void originalSize_keepsEverySetting_exceptThoseOfTheSize_data();
    void originalSize_keepsEverySetting_exceptThoseOfTheSize();
};

namespace {

const ImageProfile& at(const ProfileManager& manager, int index)
{
    return *static_cast<ImageProfile*>(manager.profiles().at(index));
}

/// A value of the same type that differs.
QVariant otherThan(const QVariant& value)
{
    if (value.userType() == QMetaType::Bool) {
        return !value.toBool();
    }
    return value.userType() == QMetaType::Int ? QVariant(value.toInt() + 1)
                                              : QVariant(value.toString() + QLatin1Char('x'));
}

} // namespace

void ReadyProfilesTest::profiles_areAdded_andTheLastUsedOneStays()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), true);
    BaseProfile* const first = manager.lastUsedProfile();
    ReadyProfiles::addTo(manager);
    QCOMPARE(namesOf(manager),
             QStringList({QStringLiteral("[Unnamed Settings]"), QStringLiteral("Original size"),
                          QStringLiteral("Full HD"), QStringLiteral("Web 1280"),
                          QStringLiteral("Thumbnail 320")}));
    QCOMPARE(manager.lastUsedProfile(), first);
    QVERIFY(at(manager, 1).sameSizeAsVideo());
    QVERIFY(!at(manager, 2).sameSizeAsVideo());
    QCOMPARE(at(manager, 2).imageWidth(), 1920);
    QCOMPARE(at(manager, 2).imageHeight(), 1080);
    QCOMPARE(at(manager, 4).imageWidth(), 320);
    const ProfileManager stored(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), true);
    QCOMPARE(namesOf(stored), namesOf(manager));
}

void ReadyProfilesTest::profile_isNotAdded_whenItsNameIsTaken()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), false);
    auto* const mine = static_cast<ImageProfile*>(manager.createProfile());
    mine->setName(QStringLiteral("full hd"));
    mine->setImageWidth(7);
    manager.addProfile(mine);
    ReadyProfiles::addTo(manager);
    QCOMPARE(namesOf(manager).filter(QStringLiteral("full hd"), Qt::CaseInsensitive),
             QStringList(mine->name()));
    QCOMPARE(mine->imageWidth(), 7);
    QCOMPARE(manager.profiles().size(), 4);
}

void ReadyProfilesTest::deletedProfile_doesNotComeBack_atTheNextStart()
{
    const TestHome home;
    ProfileManager& manager = *ImageProfile::profileManager();
    forgetProfiles(manager, QStringLiteral("ImageProfiles.ini"));
    ReadyProfiles::addOnFirstStart();
    QCOMPARE(manager.profiles().size(), 4);
    forgetProfiles(manager, QStringLiteral("ImageProfiles.ini"));
    ReadyProfiles::addOnFirstStart();
    QCOMPARE(manager.profiles().size(), 0);
}

void ReadyProfilesTest::originalSize_isTheProfileItself_whenItKeepsTheSize()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), true);
    auto& profile = *static_cast<ImageProfile*>(manager.profiles().constFirst());
    profile.setSameSizeAsVideo(true);
    QCOMPARE(ReadyProfiles::inOriginalSize(profile, manager), &profile);
    QCOMPARE(manager.profiles().size(), 1);
}

void ReadyProfilesTest::originalSize_isAListedProfile_onlyWhenAllElseIsTheSame()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), true);
    ReadyProfiles::addTo(manager);
    auto& profile = *static_cast<ImageProfile*>(manager.profiles().constFirst());
    QCOMPARE(ReadyProfiles::inOriginalSize(profile, manager)->name(),
             QStringLiteral("Original size"));
    profile.setWatermarkProfileId(QStringLiteral("mine"));
    const int count = manager.profiles().size();
    ImageProfile* const made = ReadyProfiles::inOriginalSize(profile, manager);
    QCOMPARE(made->name(), QStringLiteral("Standard, original size"));
    QCOMPARE(made->watermarkProfileId(), profile.watermarkProfileId());
    QVERIFY(made->id() != profile.id());
    QVERIFY(made->sameSizeAsVideo());
    QCOMPARE(manager.profiles().size(), count + 1);
    QCOMPARE(manager.profileForId(made->id()), made);
    delete made;
}

void ReadyProfilesTest::originalSize_keepsEverySetting_exceptThoseOfTheSize_data()
{
    // Those that change nothing while the size is the video's.
    const QStringList ofTheSize{QStringLiteral("imageWidth"), QStringLiteral("imageHeight"),
                                QStringLiteral("maintainAspectRatio"),
                                QStringLiteral("resizeFilter"),
                                QStringLiteral("resizeInLinearLight")};
    QTest::addColumn<bool>("isOfTheSize");
    const QMetaObject& meta = ImageProfile::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const char* const name = meta.property(i).name();
        if (qstrcmp(name, "sameSizeAsVideo") != 0) {
            QTest::newRow(name) << ofTheSize.contains(QLatin1String(name));
        }
    }
}

void ReadyProfilesTest::originalSize_keepsEverySetting_exceptThoseOfTheSize()
{
    QFETCH(const bool, isOfTheSize);
    const char* const name = QTest::currentDataTag();
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), true);
    auto& profile = *static_cast<ImageProfile*>(manager.profiles().constFirst());
    auto* const original = static_cast<ImageProfile*>(manager.createProfile());
    original->setSameSizeAsVideo(true);
    manager.addProfile(original);
    const QVariant other = otherThan(profile.property(name));
    QVERIFY(profile.setProperty(name, other));
    ImageProfile* const found = ReadyProfiles::inOriginalSize(profile, manager);
    QCOMPARE(found == original, isOfTheSize);
    QVERIFY(found->sameSizeAsVideo());
    if (!isOfTheSize) {
        QCOMPARE(found->property(name), other);
        delete found;
    }
}

QTEST_GUILESS_MAIN(ReadyProfilesTest)
#include "ReadyProfilesTest.moc"
