// Several programs with the same profiles, each represented by a manager.

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/profiles/ManagerCases.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QSettings>
#include <QTest>

#include <memory>

namespace {

const QString sharedFileName = QStringLiteral("Test.ini");

ImageProfile& named(const ProfileManager& manager, const QString& name)
{
    const QList<BaseProfile*> profiles = manager.profiles();
    for (BaseProfile* const profile : profiles) {
        if (profile->name() == name) {
            return *qobject_cast<ImageProfile*>(profile);
        }
    }
    qFatal("There is no profile %s", qUtf8Printable(name));
}

} // namespace

class ProfileSharingTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<ProfileKeeper> m_keeper;

    [[nodiscard]] std::unique_ptr<ProfileManager> open()
    {
        return std::make_unique<ProfileManager>(sharedFileName, m_keeper->factory<ImageProfile>(),
                                                false);
    }

    /// A file with the profiles "a", "b" and "c".
    void makeFile()
    {
        const auto manager = open();
        for (const char* const name : {"a", "b", "c"}) {
            BaseProfile* const profile = manager->createProfile();
            profile->setName(QString::fromLatin1(name));
            manager->addProfile(profile);
        }
        manager->saveProfiles();
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TestHome>();
        m_keeper = std::make_unique<ProfileKeeper>();
        makeFile();
    }
    void cleanup()
    {
        m_keeper.reset();
        m_home.reset();
    }

    void changesOfBoth_areKept()
    {
        const auto one = open();
        const auto other = open();
        named(*one, QStringLiteral("a")).setImageQuality(11);
        one->saveProfiles();
        named(*other, QStringLiteral("a")).setImageWidth(222);
        named(*other, QStringLiteral("b")).setImageQuality(33);
        other->saveProfiles();
        const auto after = open();
        QCOMPARE(named(*after, QStringLiteral("a")).imageQuality(), 11);
        QCOMPARE(named(*after, QStringLiteral("a")).imageWidth(), 222);
        QCOMPARE(named(*after, QStringLiteral("b")).imageQuality(), 33);
    }

    void newProfiles_ofBoth_areKept()
    {
        const auto one = open();
        const auto other = open();
        for (ProfileManager* const manager : {one.get(), other.get()}) {
            BaseProfile* const profile = manager->createProfile();
            profile->setName(manager == one.get() ? QStringLiteral("d") : QStringLiteral("e"));
            manager->addProfile(profile);
            manager->saveProfiles();
        }
        QStringList names = namesOf(*open());
        names.sort();
        QCOMPARE(names.join(QString()), QStringLiteral("abcde"));
    }

    void removedProfile_staysRemoved_whenTheOtherProgramSaves()
    {
        const auto one = open();
        const auto other = open();
        QVERIFY(one->removeProfile(&named(*one, QStringLiteral("a"))));
        named(*other, QStringLiteral("b")).setImageQuality(33);
        other->saveProfiles();
        QCOMPARE(namesOf(*open()), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
    }

    void removedProfile_isWholeAgain_whenTheOtherProgramChangesIt()
    {
        const auto one = open();
        const auto other = open();
        named(*one, QStringLiteral("a")).setImageWidth(777);
        one->saveProfiles();
        const auto third = open();
        QVERIFY(other->removeProfile(&named(*other, QStringLiteral("a"))));
        named(*third, QStringLiteral("a")).setImageQuality(12);
        third->saveProfiles();
        const auto after = open();
        QCOMPARE(named(*after, QStringLiteral("a")).imageQuality(), 12);
        QCOMPARE(named(*after, QStringLiteral("a")).imageWidth(), 777);
    }

    void lastUsedProfile_ofTheOtherProgram_isKept()
    {
        const auto one = open();
        const auto other = open();
        one->setLastUsedProfile(&named(*one, QStringLiteral("c")));
        named(*other, QStringLiteral("b")).setImageQuality(33);
        other->saveProfiles();
        QCOMPARE(open()->lastUsedProfile()->name(), QStringLiteral("c"));
    }

    void groupWithoutAnId_staysOneProfile()
    {
        {
            QSettings settings(m_home->settingsFile(sharedFileName), QSettings::IniFormat);
            settings.setValue(QStringLiteral("profiles/MINE/name"), QStringLiteral("mine"));
        }
        for (int start = 0; start < 3; ++start) {
            const auto manager = open();
            QCOMPARE(namesOf(*manager).count(QStringLiteral("mine")), 1);
            QCOMPARE(manager->profiles().size(), 4);
            QCOMPARE(named(*manager, QStringLiteral("mine")).id(), QStringLiteral("MINE"));
            named(*manager, QStringLiteral("mine")).setImageQuality(40 + start);
            manager->saveProfiles();
        }
    }

    void colourOfAnUnknownModel_becomesARealOne()
    {
        // A brush whose colour has 255 as its model.
        QVERIFY(m_home->writeSettingsFile(
            QStringLiteral("Marks.ini"),
            "[profiles]\nB\\id=B\nB\\textColor=@Variant(\\0\\0\\0\\x42\\x1\\xff\\xff\\xff\\xff"
            "\\xff\\xff\\xff\\xff\\0\\0)\n"));
        const ProfileManager manager(QStringLiteral("Marks.ini"),
                                     m_keeper->factory<WatermarkProfile>(), false);
        const auto* const mark = qobject_cast<WatermarkProfile*>(manager.profiles().constFirst());
        QVERIFY(mark->textColor().spec() == QColor::Rgb);
    }

    void groupsWithOneId_areOneProfile()
    {
        const QString id = named(*open(), QStringLiteral("a")).id();
        {
            QSettings settings(m_home->settingsFile(sharedFileName), QSettings::IniFormat);
            settings.setValue(QStringLiteral("profiles/COPY/name"), QStringLiteral("copy"));
            settings.setValue(QStringLiteral("profiles/COPY/id"), id.toLower());
        }
        QCOMPARE(namesOf(*open()).size(), 3);
        QVERIFY(!namesOf(*open()).contains(QStringLiteral("copy")));
    }
};

QTEST_GUILESS_MAIN(ProfileSharingTest)

#include "ProfileSharingTest.moc"
