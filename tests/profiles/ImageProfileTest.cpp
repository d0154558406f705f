#include "profiles/ImageProfile.h"

#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QFileInfo>
#include <QSettings>
#include <QTest>

class ImageProfileTest : public QObject
{
    Q_OBJECT

private slots:
    void constructor_setsDefaultsAndName()
    {
        const ImageProfile profile(nullptr);
        QCOMPARE(profile.name(), QStringLiteral("Image Profile"));
        QCOMPARE(profile.id().size(), 36);
        QCOMPARE(profile.sameSizeAsVideo(), false);
        QCOMPARE(profile.imageWidth(), 640);
        QCOMPARE(profile.imageHeight(), 480);
        QCOMPARE(profile.maintainAspectRatio(), true);
        QCOMPARE(profile.imageContrast(), 0);
        QCOMPARE(profile.imageBrightness(), 0);
        QCOMPARE(profile.imageQuality(), 90);
        QCOMPARE(profile.watermarkProfileId(), QString());
        QCOMPARE(profile.metadata(), int(ImageProfile::MetadataWithoutPlace));
        QCOMPARE(profile.resizeFilter(), int(ImageProfile::AreaFilter));
        QCOMPARE(profile.resizeInLinearLight(), false);
        QCOMPARE(profile.deepColours(), false);
        QCOMPARE(profile.deinterlacing(), QStringLiteral("auto"));
        QCOMPARE(profile.hdr(), int(ImageProfile::ToneMapped));
        QCOMPARE(profile.cropBlackEdges(), false);
    }

    void constructor_ignoresItsArgument()
    {
        ImageProfile other(nullptr);
        other.setImageWidth(1);
        other.setName(QStringLiteral("Other"));
        const ImageProfile profile(&other);
        QCOMPARE(profile.imageWidth(), 640);
        QCOMPARE(profile.name(), QStringLiteral("Image Profile"));
        QVERIFY(profile.id() != other.id());
        QCOMPARE(profile.parent(), nullptr);
    }

    void properties_areStoredInDeclaredOrder()
    {
        QCOMPARE(
            persistedPropertyNames(ImageProfile::staticMetaObject),
            QStringList({QStringLiteral("objectName"), QStringLiteral("name"), QStringLiteral("id"),
                         QStringLiteral("sameSizeAsVideo"), QStringLiteral("imageWidth"),
                         QStringLiteral("imageHeight"), QStringLiteral("maintainAspectRatio"),
                         QStringLiteral("imageContrast"), QStringLiteral("imageBrightness"),
                         QStringLiteral("imageQuality"), QStringLiteral("watermarkProfileId"),
                         QStringLiteral("metadata"), QStringLiteral("resizeFilter"),
                         QStringLiteral("resizeInLinearLight"), QStringLiteral("deepColours"),
                         QStringLiteral("deinterlacing"), QStringLiteral("hdr")}));
        QCOMPARE(ImageProfile::staticMetaObject.indexOfProperty("cropBlackEdges"), -1);
    }

    void pointer_travelsInAVariant()
    {
        ImageProfile profile;
        const QVariant variant = QVariant::fromValue(&profile);
        QCOMPARE(variant.typeName(), "ImageProfile*");
        QCOMPARE(variant.value<ImageProfile*>(), &profile);
        QCOMPARE(variant.value<QObject*>(), &profile);
    }

    void profile_doesNotChange_whenSavedAndReadBackAsText()
    {
        const TestHome home;
        ProfileKeeper keeper;
        ProfileManager writer(QStringLiteral("a.ini"), keeper.factory<ImageProfile>(), false);
        ImageProfile saved;
        saved.setSameSizeAsVideo(true);
        saved.setImageWidth(1920);
        saved.setImageHeight(-1);
        saved.setMaintainAspectRatio(false);
        saved.setImageContrast(-100);
        saved.setImageBrightness(55);
        saved.setImageQuality(150);
        saved.setWatermarkProfileId(QStringLiteral("3F2504E0-4F89-41D3-9A0C-0305E82C3301"));
        saved.setMetadata(ImageProfile::NoMetadata);
        saved.setResizeFilter(ImageProfile::NearestFilter);
        saved.setResizeInLinearLight(true);
        saved.setDeepColours(true);
        saved.setCropBlackEdges(true);
        writer.addProfile(&saved);
        writer.saveProfiles();
        QVERIFY(home.copySettingsFile(QStringLiteral("a.ini"), QStringLiteral("b.ini")));

        const ProfileManager reader(QStringLiteral("b.ini"), keeper.factory<ImageProfile>(), false);
        QCOMPARE(reader.profiles().size(), 1);
        const auto* loaded = qobject_cast<ImageProfile*>(reader.profiles().constFirst());
        QVERIFY(loaded);
        QCOMPARE(loaded->sameSizeAsVideo(), true);
        QCOMPARE(loaded->imageWidth(), 1920);
        QCOMPARE(loaded->imageHeight(), -1);
        QCOMPARE(loaded->maintainAspectRatio(), false);
        QCOMPARE(loaded->imageContrast(), -100);
        QCOMPARE(loaded->imageBrightness(), 55);
        QCOMPARE(loaded->imageQuality(), 150);
        QCOMPARE(loaded->watermarkProfileId(), saved.watermarkProfileId());
        QCOMPARE(loaded->metadata(), int(ImageProfile::NoMetadata));
        QCOMPARE(loaded->resizeFilter(), int(ImageProfile::NearestFilter));
        QCOMPARE(loaded->resizeInLinearLight(), true);
        QCOMPARE(loaded->deepColours(), true);
        QCOMPARE(loaded->cropBlackEdges(), false);
    }

    void load_leavesDefault_whenFileIsOlderThanAProperty()
    {
        const TestHome home;
        QVERIFY(home.writeSettingsFile(
            QStringLiteral("old.ini"),
            "[profiles]\nAB\\id=AB\nAB\\imageWidth=320\nAB\\cropBlackEdges=true\n"));
        ProfileKeeper keeper;
        const ProfileManager manager(QStringLiteral("old.ini"), keeper.factory<ImageProfile>(),
                                     false);
        const auto* loaded = qobject_cast<ImageProfile*>(manager.profiles().value(0));
        QVERIFY(loaded);
        QCOMPARE(loaded->imageWidth(), 320);
        QCOMPARE(loaded->imageQuality(), 90);
        QCOMPARE(loaded->maintainAspectRatio(), true);
        QCOMPARE(loaded->name(), QStringLiteral("Image Profile"));
        QCOMPARE(loaded->cropBlackEdges(), false);
    }

    void load_keepsOutOfRangeValues()
    {
        const TestHome home;
        QVERIFY(home.writeSettingsFile(
            QStringLiteral("odd.ini"),
            "[profiles]\nAB\\imageQuality=150\nAB\\imageWidth=-20\nAB\\imageHeight=tall\n"));
        ProfileKeeper keeper;
        const ProfileManager manager(QStringLiteral("odd.ini"), keeper.factory<ImageProfile>(),
                                     false);
        const auto* loaded = qobject_cast<ImageProfile*>(manager.profiles().value(0));
        QVERIFY(loaded);
        QCOMPARE(loaded->imageQuality(), 150);
        QCOMPARE(loaded->imageWidth(), -20);
        QCOMPARE(loaded->imageHeight(), 0);
    }

    void watermarkLink_holds_whenTheWatermarkProfileIsRenamed()
    {
        const TestHome home;
        ProfileKeeper keeper;
        ProfileManager watermarks(QStringLiteral("w.ini"), keeper.factory<WatermarkProfile>(),
                                  false);
        BaseProfile* const watermark = watermarks.createProfile();
        watermark->setName(QStringLiteral("Before"));
        watermarks.addProfile(watermark);
        ImageProfile profile;
        profile.setWatermarkProfileId(watermark->id());

        watermark->setName(QStringLiteral("After"));
        QCOMPARE(watermarks.profileForId(profile.watermarkProfileId()), watermark);
    }

    void profileManager_givesOneManagerAndWritesTheFirstProfile()
    {
        const TestHome home;
        ProfileManager* const manager = ImageProfile::profileManager();
        QCOMPARE(ImageProfile::profileManager(), manager);
        QCOMPARE(manager->profiles().size(), 1);
        const auto* profile = qobject_cast<ImageProfile*>(manager->profiles().constFirst());
        QVERIFY(profile);
        QCOMPARE(profile->name(), QStringLiteral("[Unnamed Settings]"));
        QCOMPARE(manager->lastUsedProfile(), profile);

        const QString file = home.settingsFile(QStringLiteral("ImageProfiles.ini"));
        QVERIFY(QFileInfo(file).isFile());
        QSettings settings(file, QSettings::IniFormat);
        QCOMPARE(settings.value(QStringLiteral("lastUsedPofileId")).toString(), profile->id());
        settings.beginGroup(QStringLiteral("profiles"));
        QCOMPARE(settings.childGroups(), QStringList(profile->id()));
        settings.beginGroup(profile->id());
        QCOMPARE(settings.value(QStringLiteral("sortOrder")), QVariant(0));
        QCOMPARE(settings.value(QStringLiteral("imageQuality")), QVariant(90));
        QCOMPARE(settings.allKeys().size(), 18);

        const std::unique_ptr<BaseProfile> made(manager->createProfile());
        QVERIFY(qobject_cast<ImageProfile*>(made.get()));
        QCOMPARE(made->name(), QStringLiteral("Image Profile"));
    }
};

QTEST_GUILESS_MAIN(ImageProfileTest)
#include "ImageProfileTest.moc"
