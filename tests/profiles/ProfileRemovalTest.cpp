#include "profiles/FileNameProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QTest>

class ProfileRemovalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removedProfile_isGoneFromListAndFile_butLives();
    void lastUsedProfile_isTheFirstOne_whenItIsRemoved();
    void onlyProfile_andUnlistedOnes_stay();
    void takenValues_leaveNameAndIdentityAlone();
};

namespace {

const QString fileName = QStringLiteral("a.ini");

BaseProfile* add(ProfileManager& manager, const QString& name)
{
    BaseProfile* const profile = manager.createProfile();
    profile->setName(name);
    manager.addProfile(profile);
    manager.saveProfiles();
    return profile;
}

} // namespace

void ProfileRemovalTest::removedProfile_isGoneFromListAndFile_butLives()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(fileName, keeper.factory<FileNameProfile>(), true);
    BaseProfile* const first = manager.profiles().constFirst();
    BaseProfile* const second = add(manager, QStringLiteral("second"));
    QVERIFY(manager.removeProfile(second));
    QCOMPARE(manager.profiles(), QList<BaseProfile*>{first});
    QCOMPARE(manager.profileForId(second->id()), nullptr);
    QCOMPARE(second->name(), QStringLiteral("second"));
    const ProfileManager stored(fileName, keeper.factory<FileNameProfile>(), false);
    QCOMPARE(stored.profiles().size(), 1);
    QCOMPARE(stored.profiles().constFirst()->id(), first->id());
}

void ProfileRemovalTest::lastUsedProfile_isTheFirstOne_whenItIsRemoved()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(fileName, keeper.factory<FileNameProfile>(), true);
    BaseProfile* const first = manager.profiles().constFirst();
    BaseProfile* const second = add(manager, QStringLiteral("second"));
    manager.setLastUsedProfile(second);
    QVERIFY(manager.removeProfile(second));
    QCOMPARE(manager.lastUsedProfile(), first);
    const ProfileManager stored(fileName, keeper.factory<FileNameProfile>(), false);
    QCOMPARE(stored.lastUsedProfile()->id(), first->id());
}

void ProfileRemovalTest::onlyProfile_andUnlistedOnes_stay()
{
    const TestHome home;
    ProfileKeeper keeper;
    ProfileManager manager(fileName, keeper.factory<FileNameProfile>(), true);
    QVERIFY(!manager.removeProfile(manager.profiles().constFirst()));
    static_cast<void>(add(manager, QStringLiteral("second")));
    FileNameProfile unlisted;
    QVERIFY(!manager.removeProfile(&unlisted));
    QCOMPARE(manager.profiles().size(), 2);
}

void ProfileRemovalTest::takenValues_leaveNameAndIdentityAlone()
{
    FileNameProfile from;
    from.setName(QStringLiteral("from"));
    from.setObjectName(QStringLiteral("object"));
    from.setFileOutputPrefix(QStringLiteral("x "));
    FileNameProfile to;
    to.setName(QStringLiteral("to"));
    const QString id = to.id();
    to.takeValuesOf(from);
    QCOMPARE(to.fileOutputPrefix(), QStringLiteral("x "));
    QCOMPARE(to.name(), QStringLiteral("to"));
    QCOMPARE(to.id(), id);
    QCOMPARE(to.objectName(), QString());
}

QTEST_GUILESS_MAIN(ProfileRemovalTest)
#include "ProfileRemovalTest.moc"
