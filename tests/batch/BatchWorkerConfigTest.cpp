#include "batch/BatchWorkerConfig.h"

#include "profiles/ProfileManager.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"

#include <QFile>
#include <QMetaProperty>
#include <QSettings>
#include <QTest>

using testsupport::TestDir;

namespace {

QString defaultsPath()
{
    return ProfileManager::getSettingsPath(QStringLiteral("batchModeDefaults.ini"));
}

/// A listed profile that no other case uses.
template <typename Profile>
Profile* newListedProfile()
{
    auto* const profile = new Profile(nullptr);
    Profile::profileManager()->addProfile(profile);
    return profile;
}

} // namespace

class BatchWorkerConfigTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void settings_haveTheirDefaults_whenNew();
    void profiles_areNewOnes_whenNew();
    void properties_standInTheirOrder();
    void properties_areStoredAndDesignable();
    void setSource_namesFileAndFolder();
    void setSource_replacesTheOutputFolder();
    void outputFolder_canBeSet_eitherWay();
    void emptyOutputFolder_isThatOfTheSource();
    void setProfileId_takesTheProfile_ignoringCase();
    void setProfileId_changesNothing_forAnUnknownId();
    void setProfile_changesNothing_forNull();
    void filenames_followTheProfile();
    void intervalDisplay_saysTheInterval_data();
    void intervalDisplay_saysTheInterval();
    void loadVideoInfo_readsTheSource();
    void saveAsDefault_writesExactlyTheDefaults();
    void saveAsDefault_keepsOtherKeys();
    void loadFromLastUsed_restoresWhatWasSaved();
    void loadFromLastUsed_keepsWhatTheFileLacks();
    void loadFromLastUsed_ignoresWhatIsNoDefault();
    void loadFromLastUsed_takesTheProfilesUsedLast();
    void loadFromLastUsed_prefersTheSavedProfiles();
    void loadFromLastUsed_fallsBack_whenSavedProfilesAreGone();
};

void BatchWorkerConfigTest::init()
{
    QFile::remove(defaultsPath());
}

void BatchWorkerConfigTest::settings_haveTheirDefaults_whenNew()
{
    const BatchWorkerConfig config;
    QCOMPARE(config.source(), QString());
    QCOMPARE(config.skipFront(), 2000);
    QCOMPARE(config.skipBack(), 2000);
    QCOMPARE(config.intervalType(), 0);
    QCOMPARE(config.intervalMilliseconds(), 5000);
    QCOMPARE(config.intervalImages(), 10);
    QCOMPARE(config.intervalSingleShot(), 1);
    QVERIFY(!config.exactFrames());
    QVERIFY(!config.videoInfo().loaded);
}

void BatchWorkerConfigTest::profiles_areNewOnes_whenNew()
{
    const BatchWorkerConfig config;
    const BatchWorkerConfig other;
    QCOMPARE(config.imageProfile()->imageWidth(), 640);
    QCOMPARE(config.filenameProfile()->fileOutputType(), QStringLiteral("jpeg"));
    QVERIFY(config.imageProfileId() != other.imageProfileId());
    QVERIFY(!ImageProfile::profileManager()->profiles().contains(config.imageProfile()));
    QVERIFY(!FileNameProfile::profileManager()->profiles().contains(config.filenameProfile()));
}

void BatchWorkerConfigTest::properties_standInTheirOrder()
{
    const QMetaObject& meta = BatchWorkerConfig::staticMetaObject;
    QStringList found;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        found.append(QStringLiteral("%1 %2").arg(QLatin1String(meta.property(i).typeName()),
                                                 QLatin1String(meta.property(i).name())));
    }
    const QStringList expected{QStringLiteral("QString source"),
                               QStringLiteral("QString imageProfileId"),
                               QStringLiteral("QString filenameProfileId"),
                               QStringLiteral("QString filenameExample"),
                               QStringLiteral("QString fileOutputPath"),
                               QStringLiteral("qlonglong skipFront"),
                               QStringLiteral("qlonglong skipBack"),
                               QStringLiteral("int intervalType"),
                               QStringLiteral("int intervalMilliseconds"),
                               QStringLiteral("int intervalImages"),
                               QStringLiteral("int intervalSingleShot"),
                               QStringLiteral("bool exactFrames")};
    QCOMPARE(found, expected);
}

void BatchWorkerConfigTest::properties_areStoredAndDesignable()
{
    const BatchWorkerConfig config;
    const QMetaObject* const meta = config.metaObject();
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const bool isExample = qstrcmp(property.name(), "filenameExample") == 0;
        QVERIFY(property.isReadable());
        QCOMPARE(property.isWritable(), !isExample);
        QVERIFY(property.isStored());
        QVERIFY(property.isDesignable());
    }
}

void BatchWorkerConfigTest::setSource_namesFileAndFolder()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.final.mov"));
    QCOMPARE(config.source(), QStringLiteral("/a/b/clip.final.mov"));
    QCOMPARE(config.sourceFileName(), QStringLiteral("clip.final"));
    QCOMPARE(config.outputDir(), QDir(QStringLiteral("/a/b")));
    QCOMPARE(config.fileOutputPath(), QStringLiteral("/a/b"));
}

void BatchWorkerConfigTest::setSource_replacesTheOutputFolder()
{
    BatchWorkerConfig config;
    config.setFileOutputPath(QStringLiteral("/elsewhere"));
    config.setSource(QStringLiteral("clip.mov"));
    QCOMPARE(config.fileOutputPath(), QDir::currentPath());
}

void BatchWorkerConfigTest::outputFolder_canBeSet_eitherWay()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.mov"));
    config.setFileOutputPath(QStringLiteral("/c/d/"));
    QCOMPARE(config.outputDir(), QDir(QStringLiteral("/c/d")));
    config.setOutputDir(QDir(QStringLiteral("/e")));
    QCOMPARE(config.fileOutputPath(), QStringLiteral("/e"));
    config.outputDir().cdUp();
    QCOMPARE(config.fileOutputPath(), QStringLiteral("/e"));
}

void BatchWorkerConfigTest::emptyOutputFolder_isThatOfTheSource()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.mov"));
    config.setFileOutputPath(QStringLiteral("/c/d"));
    config.setFileOutputPath({});
    QCOMPARE(config.fileOutputPath(), QStringLiteral("/a/b"));
}

void BatchWorkerConfigTest::setProfileId_takesTheProfile_ignoringCase()
{
    auto* const image = newListedProfile<ImageProfile>();
    auto* const filename = newListedProfile<FileNameProfile>();
    BatchWorkerConfig config;
    config.setImageProfileId(image->id().toLower());
    config.setFileNameProfileId(filename->id());
    QCOMPARE(config.imageProfile(), image);
    QCOMPARE(config.filenameProfile(), filename);
    QCOMPARE(config.imageProfileId(), image->id());
    QCOMPARE(config.filenameProfileId(), filename->id());
}

void BatchWorkerConfigTest::setProfileId_changesNothing_forAnUnknownId()
{
    BatchWorkerConfig config;
    const QString image = config.imageProfileId();
    const QString filename = config.filenameProfileId();
    for (const QString& id : {QStringLiteral("unknown"), QString(), image}) {
        config.setImageProfileId(id);
        config.setFileNameProfileId(id);
        QCOMPARE(config.imageProfileId(), image);
        QCOMPARE(config.filenameProfileId(), filename);
    }
}

void BatchWorkerConfigTest::setProfile_changesNothing_forNull()
{
    ImageProfile image;
    FileNameProfile filename;
    BatchWorkerConfig config;
    config.setImageProfile(&image);
    config.setFileNameProfile(&filename);
    config.setImageProfile(nullptr);
    config.setFileNameProfile(nullptr);
    QCOMPARE(config.imageProfile(), &image);
    QCOMPARE(config.filenameProfile(), &filename);
}

void BatchWorkerConfigTest::filenames_followTheProfile()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.final.mov"));
    QCOMPARE(config.filenameExample(), QStringLiteral("clip.final-00001.jpeg"));
    QCOMPARE(config.filenameForCounter(-1), QStringLiteral("clip.final-.jpeg"));
    config.filenameProfile()->setFileOutputPrefix(QStringLiteral("x_"));
    QCOMPARE(config.filenameForCounter(12), QStringLiteral("x_clip.final-00012.jpeg"));
}

void BatchWorkerConfigTest::intervalDisplay_saysTheInterval_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("text");
    QTest::newRow("every") << 0 << 1 << "Every 5 s";
    QTest::newRow("images") << 1 << 1 << "10 images";
    QTest::newRow("front") << 2 << 0 << "Single front";
    QTest::newRow("middle") << 2 << 1 << "Single middle";
    QTest::newRow("back") << 2 << 2 << "Single back";
    QTest::newRow("unknown place") << 2 << 7 << "Single ";
    QTest::newRow("unknown type") << 5 << 1 << "placeholder";
    QTest::newRow("negative type") << -1 << 1 << "placeholder";
}

void BatchWorkerConfigTest::intervalDisplay_saysTheInterval()
{
    QFETCH(const int, type);
    QFETCH(const int, place);
    BatchWorkerConfig config;
    config.setIntervalType(type);
    config.setIntervalSingleShot(place);
    QTEST(config.intervalDisplay(), "text");
}

void BatchWorkerConfigTest::loadVideoInfo_readsTheSource()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(path, 4, 250);
    BatchWorkerConfig config;
    config.setSource(path);
    QVERIFY(!config.videoInfo().loaded);
    config.loadVideoInfo();
    QVERIFY(config.videoInfo().loaded);
    QCOMPARE(config.videoInfo().duration, 1000);
}

void BatchWorkerConfigTest::saveAsDefault_writesExactlyTheDefaults()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.mov"));
    config.setSkipFront(5000000000);
    config.setIntervalType(2);
    config.saveAsDefault();

    const QSettings file(defaultsPath(), QSettings::IniFormat);
    QStringList keys = file.allKeys();
    keys.sort();
    const QStringList expected{QStringLiteral("exactFrames"),
                               QStringLiteral("filenameProfileId"),
                               QStringLiteral("imageProfileId"),
                               QStringLiteral("intervalImages"),
                               QStringLiteral("intervalMilliseconds"),
                               QStringLiteral("intervalSingleShot"),
                               QStringLiteral("intervalType"),
                               QStringLiteral("objectName"),
                               QStringLiteral("skipBack"),
                               QStringLiteral("skipFront")};
    QCOMPARE(keys, expected);
    QCOMPARE(file.value(QStringLiteral("objectName")).toString(), QString());
    QCOMPARE(file.value(QStringLiteral("imageProfileId")).toString(), config.imageProfileId());
    QCOMPARE(file.value(QStringLiteral("filenameProfileId")).toString(),
             config.filenameProfileId());
    QCOMPARE(file.value(QStringLiteral("skipFront")).toString(), QStringLiteral("5000000000"));
    QCOMPARE(file.value(QStringLiteral("skipBack")).toString(), QStringLiteral("2000"));
    QCOMPARE(file.value(QStringLiteral("intervalType")).toString(), QStringLiteral("2"));
    QCOMPARE(file.value(QStringLiteral("intervalMilliseconds")).toString(), QStringLiteral("5000"));
    QCOMPARE(file.value(QStringLiteral("intervalImages")).toString(), QStringLiteral("10"));
    QCOMPARE(file.value(QStringLiteral("intervalSingleShot")).toString(), QStringLiteral("1"));
    QCOMPARE(file.value(QStringLiteral("exactFrames")).toString(), QStringLiteral("false"));
}

void BatchWorkerConfigTest::saveAsDefault_keepsOtherKeys()
{
    {
        QSettings file(defaultsPath(), QSettings::IniFormat);
        file.setValue(QStringLiteral("other"), 1);
    }
    BatchWorkerConfig().saveAsDefault();
    QVERIFY(QSettings(defaultsPath(), QSettings::IniFormat).contains(QStringLiteral("other")));
}

void BatchWorkerConfigTest::loadFromLastUsed_restoresWhatWasSaved()
{
    BatchWorkerConfig saved;
    saved.setObjectName(QStringLiteral("job"));
    saved.setImageProfile(newListedProfile<ImageProfile>());
    saved.setFileNameProfile(newListedProfile<FileNameProfile>());
    saved.setSkipFront(11);
    saved.setSkipBack(12);
    saved.setIntervalType(1);
    saved.setIntervalMilliseconds(13);
    saved.setIntervalImages(14);
    saved.setIntervalSingleShot(2);
    saved.setExactFrames(true);
    saved.saveAsDefault();

    BatchWorkerConfig loaded;
    loaded.loadFromLastUsed();
    QCOMPARE(loaded.objectName(), QStringLiteral("job"));
    QCOMPARE(loaded.imageProfile(), saved.imageProfile());
    QCOMPARE(loaded.filenameProfile(), saved.filenameProfile());
    QCOMPARE(loaded.skipFront(), 11);
    QCOMPARE(loaded.skipBack(), 12);
    QCOMPARE(loaded.intervalType(), 1);
    QCOMPARE(loaded.intervalMilliseconds(), 13);
    QCOMPARE(loaded.intervalImages(), 14);
    QCOMPARE(loaded.intervalSingleShot(), 2);
    QVERIFY(loaded.exactFrames());
}

void BatchWorkerConfigTest::loadFromLastUsed_keepsWhatTheFileLacks()
{
    {
        QSettings file(defaultsPath(), QSettings::IniFormat);
        file.setValue(QStringLiteral("skipBack"), 99);
    }
    BatchWorkerConfig config;
    config.setSkipFront(77);
    config.loadFromLastUsed();
    QCOMPARE(config.skipBack(), 99);
    QCOMPARE(config.skipFront(), 77);
    QCOMPARE(config.intervalImages(), 10);
}

void BatchWorkerConfigTest::loadFromLastUsed_ignoresWhatIsNoDefault()
{
    {
        QSettings file(defaultsPath(), QSettings::IniFormat);
        file.setValue(QStringLiteral("source"), QStringLiteral("/other/other.mov"));
        file.setValue(QStringLiteral("fileOutputPath"), QStringLiteral("/other"));
        file.setValue(QStringLiteral("filenameExample"), QStringLiteral("other"));
    }
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/a/b/clip.mov"));
    config.loadFromLastUsed();
    QCOMPARE(config.source(), QStringLiteral("/a/b/clip.mov"));
    QCOMPARE(config.fileOutputPath(), QStringLiteral("/a/b"));
}

void BatchWorkerConfigTest::loadFromLastUsed_takesTheProfilesUsedLast()
{
    auto* const image = newListedProfile<ImageProfile>();
    auto* const filename = newListedProfile<FileNameProfile>();
    ImageProfile::profileManager()->setLastUsedProfile(image);
    FileNameProfile::profileManager()->setLastUsedProfile(filename);
    BatchWorkerConfig config;
    config.loadFromLastUsed();
    QCOMPARE(config.imageProfile(), image);
    QCOMPARE(config.filenameProfile(), filename);
}

void BatchWorkerConfigTest::loadFromLastUsed_prefersTheSavedProfiles()
{
    BatchWorkerConfig saved;
    saved.setImageProfile(newListedProfile<ImageProfile>());
    saved.saveAsDefault();
    ImageProfile::profileManager()->setLastUsedProfile(newListedProfile<ImageProfile>());
    BatchWorkerConfig config;
    config.loadFromLastUsed();
    QCOMPARE(config.imageProfile(), saved.imageProfile());
}

void BatchWorkerConfigTest::loadFromLastUsed_fallsBack_whenSavedProfilesAreGone()
{
    BatchWorkerConfig().saveAsDefault();
    auto* const image = newListedProfile<ImageProfile>();
    ImageProfile::profileManager()->setLastUsedProfile(image);
    BatchWorkerConfig config;
    config.loadFromLastUsed();
    QCOMPARE(config.imageProfile(), image);
}

QTEST_MAIN(BatchWorkerConfigTest)
#include "BatchWorkerConfigTest.moc"
