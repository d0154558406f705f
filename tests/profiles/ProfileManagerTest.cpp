#include "profiles/ProfileManager.h"

#include "profiles/ImageProfile.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <functional>

namespace {

const QString fileName = QStringLiteral("Test.ini");
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

QStringList namesOf(const ProfileManager& manager)
{
    QStringList names;
    const QList<BaseProfile*> profiles = manager.profiles();
    for (const BaseProfile* profile : profiles)
        names.append(profile->name());
    return names;
}

} // namespace

class ProfileManagerTest : public QObject
{
    Q_OBJECT

private:
    // Created again for every case.
    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<ProfileKeeper> m_keeper;

    ProfileManager::Factory factory() { return m_keeper->factory<ImageProfile>(); }

    std::unique_ptr<ProfileManager> emptyManager()
    {
        return std::make_unique<ProfileManager>(fileName, factory(), false);
    }

    std::unique_ptr<ProfileManager> managerOf(const QByteArray& text)
    {
        if (!m_home->writeSettingsFile(fileName, text))
            qFatal("The settings file of the case cannot be written");
        return emptyManager();
    }

    static BaseProfile* addNamed(ProfileManager& manager, const QString& name)
    {
        BaseProfile* const profile = manager.createProfile();
        profile->setName(name);
        manager.addProfile(profile);
        return profile;
    }

    QString filePath() const { return m_home->settingsFile(fileName); }

    QVariant stored(const QString& key) const
    {
        return QSettings(filePath(), QSettings::IniFormat).value(key);
    }

private slots:
    void init()
    {
        m_home = std::make_unique<TestHome>();
        QVERIFY(m_home->isValid());
        m_keeper = std::make_unique<ProfileKeeper>();
    }

    void cleanup()
    {
        m_keeper.reset();
        m_home.reset();
    }

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
        QCOMPARE(m_keeper->madeCount(), 0);
        QVERIFY(QFileInfo(filePath()).isFile());
        QVERIFY(!stored(lastUsedKey).isValid());
    }

    void constructor_makesNoDefault_whenFileHasAProfile()
    {
        QVERIFY(m_home->writeSettingsFile(fileName, "[profiles]\nA\\id=A\nA\\name=Mine\n"));
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

        QVERIFY(m_home->writeSettingsFile(QStringLiteral("full.ini"), "[profiles]\nA\\id=A\n"));
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

    void loadProfilesFromFile_ordersBySortOrderAsANumber()
    {
        const auto manager =
            managerOf("[profiles]\nA\\name=ten\nA\\sortOrder=10\nB\\name=nine\nB\\sortOrder=9\n"
                      "C\\name=minus\nC\\sortOrder=-1\nD\\name=none\nE\\name=five\n"
                      "E\\sortOrder=5\n");
        QCOMPARE(namesOf(*manager), QStringList({QStringLiteral("minus"), QStringLiteral("none"),
                                                 QStringLiteral("five"), QStringLiteral("nine"),
                                                 QStringLiteral("ten")}));
    }

    void loadProfilesFromFile_countsAWordAsSortOrderZero()
    {
        const auto manager = managerOf("[profiles]\nA\\name=one\nA\\sortOrder=1\nB\\name=word\n"
                                       "B\\sortOrder=last\nC\\name=minus\nC\\sortOrder=-1\n");
        QCOMPARE(namesOf(*manager), QStringList({QStringLiteral("minus"), QStringLiteral("word"),
                                                 QStringLiteral("one")}));
    }

    void loadProfilesFromFile_loadsAll_whenSortOrdersAreEqual()
    {
        const auto manager = managerOf("[profiles]\nA\\name=a\nA\\sortOrder=1\nB\\name=b\n"
                                       "B\\sortOrder=1\nC\\name=first\nC\\sortOrder=0\n");
        QStringList names = namesOf(*manager);
        QCOMPARE(names.takeFirst(), QStringLiteral("first"));
        names.sort();
        QCOMPARE(names, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void loadProfilesFromFile_replacesTheListAndDeletesNothing()
    {
        const auto manager = managerOf("[profiles]\nA\\id=A\n");
        const QPointer<BaseProfile> before = manager->profiles().constFirst();
        const QPointer<BaseProfile> unsaved = addNamed(*manager, QStringLiteral("unsaved"));
        manager->loadProfilesFromFile();
        QCOMPARE(manager->profiles().size(), 1);
        QVERIFY(before && unsaved);
        QVERIFY(manager->profiles().constFirst() != before);
        QCOMPARE(manager->lastUsedProfile(), manager->profiles().constFirst());
    }

    void loadProfilesFromFile_dropsTheLastUsed_whenItsIdIsUnknown()
    {
        const auto manager = managerOf("[profiles]\nA\\id=A\n");
        QVERIFY(m_home->writeSettingsFile(
            fileName, "[General]\nlastUsedPofileId=unknown one\n[profiles]\nA\\id=A\n"));
        manager->loadProfilesFromFile();
        QCOMPARE(manager->lastUsedProfile(), nullptr);
    }

    void loadProfilesFromFile_keepsTheLastUsed_whenNoneIsStored()
    {
        const auto manager = managerOf("[profiles]\nA\\id=A\n");
        BaseProfile* const lastUsed = manager->lastUsedProfile();
        QVERIFY(m_home->writeSettingsFile(fileName,
                                          "[General]\nlastUsedPofileId=\n[profiles]\nB\\id=B\n"));
        manager->loadProfilesFromFile();
        QCOMPARE(manager->lastUsedProfile(), lastUsed);
        QCOMPARE(manager->profiles().size(), 1);
    }

    void loadProfilesFromFile_logsEachName()
    {
        QVERIFY(m_home->writeSettingsFile(fileName, "[profiles]\nA\\name=Logged\n"));
        QTest::ignoreMessage(QtDebugMsg, "Loaded Profile \"Logged\"");
        const auto manager = emptyManager();
        QCOMPARE(manager->profiles().size(), 1);
    }

    void profileWithoutId_isWhoItsGroupSays()
    {
        const auto manager = managerOf("[profiles]\nOLD\\name=Mine\n");
        QCOMPARE(manager->profiles().constFirst()->id(), QStringLiteral("OLD"));
        QCOMPARE(stored(QStringLiteral("profiles/OLD/id")).toString(), QStringLiteral("OLD"));
        const auto next = emptyManager();
        QCOMPARE(namesOf(*next), QStringList(QStringLiteral("Mine")));
        QVERIFY(next->profileForId(QStringLiteral("OLD")));
    }

    void profileStoredUnderAnotherName_goesByItsIdKey()
    {
        const auto manager = managerOf("[profiles]\nGROUP\\id=KEY\n");
        QVERIFY(manager->profileForId(QStringLiteral("key")));
        QVERIFY(!manager->profileForId(QStringLiteral("GROUP")));
    }

    void saveProfiles_numbersProfilesInListOrder()
    {
        const auto manager = emptyManager();
        for (int i = 0; i < 12; ++i)
            addNamed(*manager, QString::number(i));
        manager->saveProfiles();
        QVERIFY(m_home->copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const ProfileManager reader(QStringLiteral("copy.ini"), factory(), false);
        QCOMPARE(namesOf(reader), namesOf(*manager));
        const BaseProfile* last = manager->profiles().constLast();
        QCOMPARE(stored(QStringLiteral("profiles/%1/sortOrder").arg(last->id())).toInt(), 11);
    }

    void saveProfiles_keepsWhatItDoesNotKnow()
    {
        const auto manager = managerOf(
            "[General]\nnewer=1\n[window]\nwidth=2\n[profiles]\nstray=3\nA\\id=A\nA\\future=4\n");
        BaseProfile* const profile = manager->profiles().constFirst();
        profile->setName(QStringLiteral("changed"));
        manager->saveProfiles();
        QVERIFY(m_home->copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const QSettings copy(m_home->settingsFile(QStringLiteral("copy.ini")),
                             QSettings::IniFormat);
        QCOMPARE(copy.value(QStringLiteral("newer")).toInt(), 1);
        QCOMPARE(copy.value(QStringLiteral("window/width")).toInt(), 2);
        QCOMPARE(copy.value(QStringLiteral("profiles/stray")).toInt(), 3);
        QCOMPARE(copy.value(QStringLiteral("profiles/A/future")).toInt(), 4);
        QCOMPARE(copy.value(QStringLiteral("profiles/A/name")).toString(),
                 QStringLiteral("changed"));
    }

    void saveProfiles_keepsProfilesThatAnotherManagerAdded()
    {
        const auto manager = emptyManager();
        const auto other = emptyManager();
        addNamed(*manager, QStringLiteral("one"));
        addNamed(*other, QStringLiteral("two"));
        other->saveProfiles();
        manager->saveProfiles();
        QStringList names = namesOf(*emptyManager());
        names.sort();
        QCOMPARE(names, QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    }

    void names_surviveTheFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("a \"quoted\" 'name'");
        QTest::newRow("slashes") << QStringLiteral("a/b\\c//");
        QTest::newRow("emoji") << QStringLiteral("🎬 👩‍👩‍👧 é 日本語 עברית");
        QTest::newRow("500 characters") << QString(500, QLatin1Char('x'));
        QTest::newRow("separators") << QStringLiteral("a, b; c = d # [e] %1");
        QTest::newRow("at sign") << QStringLiteral("@Invalid()");
        QTest::newRow("spaces around") << QStringLiteral("  a  ");
        QTest::newRow("lines") << QStringLiteral("a\nb\r\n\tc");
        QTest::newRow("escape then digit") << QStringLiteral("é1f\u0001f");
        QTest::newRow("empty") << QString();
    }

    void names_surviveTheFile()
    {
        QFETCH(QString, name);
        const auto manager = emptyManager();
        addNamed(*manager, name);
        manager->saveProfiles();
        QVERIFY(m_home->copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const ProfileManager reader(QStringLiteral("copy.ini"), factory(), false);
        QCOMPARE(namesOf(reader), QStringList(name));
    }

    void thousandProfiles_comeBackInOrder()
    {
        const auto manager = emptyManager();
        for (int i = 0; i < 1000; ++i)
            addNamed(*manager, QString::number(i));
        manager->setLastUsedProfile(manager->profiles().at(500));
        QVERIFY(m_home->copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const ProfileManager reader(QStringLiteral("copy.ini"), factory(), false);
        QCOMPARE(namesOf(reader), namesOf(*manager));
        QCOMPARE(reader.lastUsedProfile()->name(), QStringLiteral("500"));
    }

    void unreadableFile_countsAsEmpty_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no settings") << QByteArray("just\nsome text\n\n{]");
        QTest::newRow("binary") << QByteArray("\x7f"
                                              "ELF\0\0\xff\xfe\n\0\x01",
                                              12);
        QTest::newRow("cut in a section") << QByteArray("[profi");
    }

    void unreadableFile_countsAsEmpty()
    {
        QFETCH(QByteArray, text);
        QVERIFY(m_home->writeSettingsFile(fileName, text));
        const ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Unnamed Settings]")));
        QVERIFY(m_home->copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const ProfileManager reader(QStringLiteral("copy.ini"), factory(), false);
        QCOMPARE(namesOf(reader), QStringList(QStringLiteral("[Unnamed Settings]")));
    }

    void folderInTheFilesPlace_isLeftAlone()
    {
        QVERIFY(QDir().mkpath(filePath()));
        ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Unnamed Settings]")));
        manager.setLastUsedProfile(addNamed(manager, QStringLiteral("kept in memory")));
        QCOMPARE(manager.lastUsedProfile()->name(), QStringLiteral("kept in memory"));
        QVERIFY(QFileInfo(filePath()).isDir());
        QVERIFY(QDir(filePath()).isEmpty());
    }

    // Nobody, not even root, can write through a link into a folder that does not exist.
    void fileThatCannotBeWritten_isIgnored()
    {
        QVERIFY(QDir().mkpath(QFileInfo(filePath()).path()));
        const QString target = m_home->path(QStringLiteral("missing/target.ini"));
        QVERIFY(QFile::link(target, filePath()));
        ProfileManager manager(fileName, factory(), true);
        manager.saveProfiles();
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Unnamed Settings]")));
        QVERIFY(!QFileInfo::exists(target));
    }

    void getSettingsPath_makesTheConfigurationFolder()
    {
        const QString folder = QFileInfo(filePath()).path();
        QVERIFY(!QFileInfo::exists(folder));
        QCOMPARE(ProfileManager::getSettingsPath(fileName), filePath());
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(ProfileManager::getSettingsPath(fileName), filePath());
    }

    void getSettingsPath_givesTheBareName_whenTheFolderCannotBeMade()
    {
        QFile obstacle(m_home->path(QStringLiteral("config")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        QCOMPARE(ProfileManager::getSettingsPath(fileName), fileName);
    }

    void profiles_areKeptInTheWorkingFolder_whenTheConfigurationFolderCannotBeMade()
    {
        QFile obstacle(m_home->path(QStringLiteral("config")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        const QString workingFolder = QDir::currentPath();
        const auto goBack = qScopeGuard([&workingFolder] { QDir::setCurrent(workingFolder); });
        QVERIFY(QDir::setCurrent(m_home->path(QString())));

        const ProfileManager manager(fileName, factory(), true);
        QVERIFY(QFileInfo(m_home->path(fileName)).isFile());
        const ProfileManager reader(fileName, factory(), false);
        QCOMPARE(reader.profiles().constFirst()->id(), manager.profiles().constFirst()->id());
    }
};

QTEST_GUILESS_MAIN(ProfileManagerTest)
#include "ProfileManagerTest.moc"
