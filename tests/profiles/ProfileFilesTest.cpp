#include "tests/profiles/ManagerCases.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>

/// What a manager reads from its file, and what it writes there.
class ProfileFilesTest : public QObject, protected ManagerCases
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(begin()); }
    void cleanup() { end(); }

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
        QVERIFY(home().writeSettingsFile(
            fileName, "[General]\nlastUsedPofileId=unknown one\n[profiles]\nA\\id=A\n"));
        manager->loadProfilesFromFile();
        QCOMPARE(manager->lastUsedProfile(), nullptr);
    }

    void loadProfilesFromFile_keepsTheLastUsed_whenNoneIsStored()
    {
        const auto manager = managerOf("[profiles]\nA\\id=A\n");
        BaseProfile* const lastUsed = manager->lastUsedProfile();
        QVERIFY(home().writeSettingsFile(fileName,
                                         "[General]\nlastUsedPofileId=\n[profiles]\nB\\id=B\n"));
        manager->loadProfilesFromFile();
        QCOMPARE(manager->lastUsedProfile(), lastUsed);
        QCOMPARE(manager->profiles().size(), 1);
    }

    void loadProfilesFromFile_logsEachName()
    {
        QVERIFY(home().writeSettingsFile(fileName, "[profiles]\nA\\name=Logged\n"));
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
        for (int i = 0; i < 12; ++i) {
            addNamed(*manager, QString::number(i));
        }
        manager->saveProfiles();
        QVERIFY(home().copySettingsFile(fileName, QStringLiteral("copy.ini")));
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
        QVERIFY(home().copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const QSettings copy(home().settingsFile(QStringLiteral("copy.ini")), QSettings::IniFormat);
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
        QVERIFY(home().copySettingsFile(fileName, QStringLiteral("copy.ini")));
        const ProfileManager reader(QStringLiteral("copy.ini"), factory(), false);
        QCOMPARE(namesOf(reader), QStringList(name));
    }

    void thousandProfiles_comeBackInOrder()
    {
        const auto manager = emptyManager();
        for (int i = 0; i < 1000; ++i) {
            addNamed(*manager, QString::number(i));
        }
        manager->setLastUsedProfile(manager->profiles().at(500));
        QVERIFY(home().copySettingsFile(fileName, QStringLiteral("copy.ini")));
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
        QVERIFY(home().writeSettingsFile(fileName, text));
        const ProfileManager manager(fileName, factory(), true);
        QCOMPARE(namesOf(manager), QStringList(QStringLiteral("[Unnamed Settings]")));
        QVERIFY(home().copySettingsFile(fileName, QStringLiteral("copy.ini")));
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

    // A link into a folder that is not there can be written by nobody, not even by root.
    void fileThatCannotBeWritten_isIgnored()
    {
        QVERIFY(QDir().mkpath(QFileInfo(filePath()).path()));
        const QString target = home().path(QStringLiteral("missing/target.ini"));
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
        QFile obstacle(home().path(QStringLiteral("config")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        QCOMPARE(ProfileManager::getSettingsPath(fileName), fileName);
    }

    void profiles_areKeptInTheWorkingFolder_whenTheConfigurationFolderCannotBeMade()
    {
        QFile obstacle(home().path(QStringLiteral("config")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        const QString workingFolder = QDir::currentPath();
        const auto goBack = qScopeGuard([&workingFolder] { QDir::setCurrent(workingFolder); });
        QVERIFY(QDir::setCurrent(home().path(QString())));

        const ProfileManager manager(fileName, factory(), true);
        QVERIFY(QFileInfo(home().path(fileName)).isFile());
        const ProfileManager reader(fileName, factory(), false);
        QCOMPARE(reader.profiles().constFirst()->id(), manager.profiles().constFirst()->id());
    }
};

QTEST_GUILESS_MAIN(ProfileFilesTest)
#include "ProfileFilesTest.moc"
