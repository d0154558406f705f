#include "tests/profiles/ManagerCases.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <functional>

namespace {

const QString lastUsedKey = QStringLiteral("lastUsedPofileId");

/// Translates the manager's only text.
class OneTextTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool known =
            qstrcmp(context, "ProfileManager") == 0 && qstrcmp(text, "Unnamed Settings") == 0;
        return known ? QStringLiteral("Namenlos") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Profiles of a manager in memory, and which of them was used last.
class ProfileManagerTest : public QObject, protected ManagerCases
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(begin()); }
    void cleanup() { end(); }

    void constructor_writesOneUnnamedProfile_whenFileIsMissing()
    {
        const ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Unnamed Settings]")));
        const BaseProfile* profile = manager.profiles().constFirst();
        QCOMPARE(manager.lastUsedProfile(), profile);
        QCOMPARE(stored(lastUsedKey).toString(), profile->id());
        const QString group = QStringLiteral("profiles/") + profile->id();
        QCOMPARE(stored(group + QStringLiteral("/sortOrder")).toInt(), 0);
        QCOMPARE(stored(group + QStringLiteral("/name")).toString(), profile->name());
        QCOMPARE(stored(group + QStringLiteral("/id")).toString(), profile->id());
        QCOMPARE(stored(group + QStringLiteral("/imageQuality")).toInt(), 90);
        QCOMPARE(stored(group + QStringLiteral("/objectName")).toString(), QString());
    }

    void constructor_writesTheEstablishedFileShape()
    {
        const ProfileManager manager(fileName, factory(), true);
        QFile file(filePath());
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QList<QByteArray> lines = file.readAll().split('\n');
        const QByteArray id = manager.profiles().constFirst()->id().toLatin1();
        const int general = lines.indexOf("[General]");
        const int profiles = lines.indexOf("[profiles]");
        QVERIFY(general >= 0 && profiles > general);
        QCOMPARE(lines.indexOf("lastUsedPofileId=" + id), general + 1);
        QVERIFY(lines.indexOf(id + "\\imageQuality=90") > profiles);
        QVERIFY(lines.indexOf(id + "\\sortOrder=0") > profiles);
        QVERIFY(lines.indexOf(id + "\\objectName=") > profiles);
        QVERIFY(lines.indexOf(id + "\\sameSizeAsVideo=false") > profiles);
    }

    void constructor_staysEmpty_whenNoDefaultIsWanted()
    {
        const auto manager = emptyManager();
        QVERIFY(manager->profiles().isEmpty());
        QCOMPARE(manager->lastUsedProfile(), nullptr);
        QCOMPARE(keeper().madeCount(), 0);
        QVERIFY(QFileInfo(filePath()).isFile());
        QVERIFY(!stored(lastUsedKey).isValid());
    }

    void constructor_makesNoDefault_whenFileHasAProfile()
    {
        QVERIFY(home().writeSettingsFile(fileName, "[profiles]\nA\\id=A\nA\\name=Mine\n"));
        const ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("Mine")));
    }

    void constructor_translatesTheTextBetweenTheBrackets()
    {
        OneTextTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Namenlos]")));
    }

    void constructor_makesTheFirstProfileTheLastUsed_whenNoneIsStored()
    {
        const auto manager = managerOf("[profiles]\nA\\id=A\nA\\sortOrder=2\n"
                                       "B\\id=B\nB\\sortOrder=1\n");
        QCOMPARE(manager->lastUsedProfile()->id(), QStringLiteral("B"));
        QCOMPARE(stored(lastUsedKey).toString(), QStringLiteral("B"));
    }

    void constructor_restoresTheLastUsedProfile()
    {
        const auto manager = managerOf("[General]\nlastUsedPofileId=B\n[profiles]\nA\\id=A\n"
                                       "A\\sortOrder=0\nB\\id=B\nB\\sortOrder=1\n");
        QCOMPARE(manager->lastUsedProfile()->id(), QStringLiteral("B"));
    }

    void constructor_ignoresTheKeySpeltRight()
    {
        const auto manager = managerOf("[General]\nlastUsedProfileId=B\n[profiles]\nA\\id=A\n"
                                       "A\\sortOrder=0\nB\\id=B\nB\\sortOrder=1\n");
        QCOMPARE(manager->lastUsedProfile()->id(), QStringLiteral("A"));
    }

    void constructor_picksTheFirst_whenStoredIdBelongsToNoProfile()
    {
        const auto manager = managerOf("[General]\nlastUsedPofileId=gone\n[profiles]\nA\\id=A\n");
        QCOMPARE(manager->lastUsedProfile()->id(), QStringLiteral("A"));
        QCOMPARE(stored(lastUsedKey).toString(), QStringLiteral("A"));
    }

    void constructor_leavesTheStoredId_whenThereIsNoProfile()
    {
        const auto manager = managerOf("[General]\nlastUsedPofileId=gone\n");
        QCOMPARE(manager->lastUsedProfile(), nullptr);
        QCOMPARE(stored(lastUsedKey).toString(), QStringLiteral("gone"));
    }

    void factorylessManager_throws_whenAProfileHasToBeMade()
    {
        QVERIFY_EXCEPTION_THROWN(ProfileManager(fileName, nullptr, true), std::bad_function_call);
        ProfileManager manager(fileName, nullptr, false);
        QVERIFY_EXCEPTION_THROWN(Q_UNUSED(manager.createProfile()), std::bad_function_call);
        QVERIFY(manager.profiles().isEmpty());
        manager.loadProfilesFromFile();

        QVERIFY(home().writeSettingsFile(QStringLiteral("full.ini"), "[profiles]\nA\\id=A\n"));
        QVERIFY_EXCEPTION_THROWN(ProfileManager(QStringLiteral("full.ini"), nullptr, false),
                                 std::bad_function_call);
    }

    void createProfile_changesNeitherListNorFile()
    {
        const auto manager = emptyManager();
        QVERIFY(QFile::remove(filePath()));
        QVERIFY(manager->createProfile());
        QVERIFY(manager->profiles().isEmpty());
        QVERIFY(!QFileInfo::exists(filePath()));
    }

    void addProfile_appendsWithoutSaving()
    {
        const auto manager = emptyManager();
        QVERIFY(QFile::remove(filePath()));
        addNamed(*manager, QStringLiteral("one"));
        addNamed(*manager, QStringLiteral("two"));
        QCOMPARE(namesOf(*manager), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
        QVERIFY(!QFileInfo::exists(filePath()));
        QCOMPARE(manager->lastUsedProfile(), nullptr);
    }

    void profiles_givesACopy()
    {
        const auto manager = emptyManager();
        addNamed(*manager, QStringLiteral("one"));
        QList<BaseProfile*> copy = manager->profiles();
        copy.clear();
        QCOMPARE(manager->profiles().size(), 1);
    }

    void profileForId_ignoresLetterCaseAndPrefersTheFirst()
    {
        const auto manager = emptyManager();
        BaseProfile* const first = addNamed(*manager, QStringLiteral("one"));
        BaseProfile* const second = addNamed(*manager, QStringLiteral("two"));
        QCOMPARE(manager->profileForId(second->id().toLower()), second);
        second->setId(first->id().toLower());
        QCOMPARE(manager->profileForId(second->id()), first);
        QCOMPARE(manager->profileForId(first->id()), first);
    }

    void profileForId_givesNull_whenNoneMatches()
    {
        const auto manager = emptyManager();
        addNamed(*manager, QStringLiteral("one"))->setId(QString());
        QCOMPARE(manager->profileForId(QStringLiteral("x")), nullptr);
        QCOMPARE(manager->profileForId(QString()), nullptr);
        QCOMPARE(manager->profileForId(QStringLiteral("")), nullptr);
    }

    void setLastUsedProfile_savesAtOnce_whenItChanges()
    {
        const auto manager = emptyManager();
        BaseProfile* const first = addNamed(*manager, QStringLiteral("one"));
        BaseProfile* const second = addNamed(*manager, QStringLiteral("two"));
        manager->setLastUsedProfile(second);
        QCOMPARE(manager->lastUsedProfile(), second);
        QCOMPARE(stored(lastUsedKey).toString(), second->id());
        QVERIFY(stored(QStringLiteral("profiles/%1/name").arg(first->id())).isValid());
        manager->setLastUsedProfile(first);
        QCOMPARE(stored(lastUsedKey).toString(), first->id());
    }

    void setLastUsedProfile_doesNotWrite_whenItStaysTheSame()
    {
        const auto manager = emptyManager();
        BaseProfile* const profile = addNamed(*manager, QStringLiteral("one"));
        manager->setLastUsedProfile(profile);
        QVERIFY(QFile::remove(filePath()));
        manager->setLastUsedProfile(profile);
        QVERIFY(!QFileInfo::exists(filePath()));
    }

    void setLastUsedProfile_leavesTheKey_whenGivenNull()
    {
        const auto manager = emptyManager();
        BaseProfile* const profile = addNamed(*manager, QStringLiteral("one"));
        manager->setLastUsedProfile(profile);
        manager->setLastUsedProfile(nullptr);
        QCOMPARE(manager->lastUsedProfile(), nullptr);
        QCOMPARE(stored(lastUsedKey).toString(), profile->id());
    }
};

QTEST_GUILESS_MAIN(ProfileManagerTest)
#include "ProfileManagerTest.moc"
