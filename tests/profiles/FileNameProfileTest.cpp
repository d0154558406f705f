#include "profiles/FileNameProfile.h"

#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QFileInfo>
#include <QSettings>
#include <QTest>

#include <limits>

class FileNameProfileTest : public QObject
{
    Q_OBJECT

private slots:
    void constructor_setsDefaultsAndNoName()
    {
        const FileNameProfile profile(nullptr);
        QCOMPARE(profile.name(), QString());
        QCOMPARE(profile.id().size(), 36);
        QCOMPARE(profile.fileOutputPrefix(), QString());
        QCOMPARE(profile.fileBaseName(), QString());
        QCOMPARE(profile.fileOutputSuffix(), QStringLiteral("-"));
        QCOMPARE(profile.fileOutputType(), QStringLiteral("jpeg"));
        QCOMPARE(profile.fileOutputCounterPadZeros(), true);
    }

    void constructor_ignoresItsArgument()
    {
        FileNameProfile other(nullptr);
        other.setFileOutputType(QStringLiteral("png"));
        const FileNameProfile profile(&other);
        QCOMPARE(profile.fileOutputType(), QStringLiteral("jpeg"));
        QVERIFY(profile.id() != other.id());
        QCOMPARE(profile.parent(), nullptr);
    }

    void properties_areStoredInDeclaredOrder()
    {
        QCOMPARE(
            persistedPropertyNames(FileNameProfile::staticMetaObject),
            QStringList({QStringLiteral("objectName"), QStringLiteral("name"), QStringLiteral("id"),
                         QStringLiteral("fileOutputPrefix"), QStringLiteral("fileBaseName"),
                         QStringLiteral("fileOutputSuffix"), QStringLiteral("fileOutputType"),
                         QStringLiteral("fileOutputCounterPadZeros")}));
    }

    void generateFileName_formatsTheCounter_data()
    {
        QTest::addColumn<int>("counter");
        QTest::addColumn<QString>("padded");
        QTest::addColumn<QString>("plain");
        const auto row = [](int counter, const char* padded, const char* plain) {
            QTest::addRow("%d", counter)
                << counter << QString::fromLatin1(padded) << QString::fromLatin1(plain);
        };
        row(-1, "MyVideo-.jpeg", "MyVideo-.jpeg");
        row(0, "MyVideo-00000.jpeg", "MyVideo-0.jpeg");
        row(1, "MyVideo-00001.jpeg", "MyVideo-1.jpeg");
        row(42, "MyVideo-00042.jpeg", "MyVideo-42.jpeg");
        row(99999, "MyVideo-99999.jpeg", "MyVideo-99999.jpeg");
        row(100000, "MyVideo-100000.jpeg", "MyVideo-100000.jpeg");
        row(123456, "MyVideo-123456.jpeg", "MyVideo-123456.jpeg");
        row(std::numeric_limits<int>::max(), "MyVideo-2147483647.jpeg", "MyVideo-2147483647.jpeg");
        row(-2, "MyVideo--0002.jpeg", "MyVideo--2.jpeg");
    }

    void generateFileName_formatsTheCounter()
    {
        QFETCH(int, counter);
        FileNameProfile profile;
        QTEST(profile.generateFileName(QStringLiteral("MyVideo"), counter), "padded");
        profile.setFileOutputCounterPadZeros(false);
        QTEST(profile.generateFileName(QStringLiteral("MyVideo"), counter), "plain");
    }

    void generateFileName_keepsSuffix_whenGivenNoCounter()
    {
        QCOMPARE(FileNameProfile().generateFileName(QStringLiteral("MyVideo")),
                 QStringLiteral("MyVideo-.jpeg"));
    }

    void generateFileName_joinsAllParts()
    {
        FileNameProfile profile;
        profile.setFileOutputPrefix(QStringLiteral("shot_"));
        profile.setFileBaseName(QStringLiteral("Scene"));
        profile.setFileOutputSuffix(QStringLiteral("_"));
        profile.setFileOutputType(QStringLiteral("png"));
        profile.setFileOutputCounterPadZeros(false);
        QCOMPARE(profile.generateFileName(QStringLiteral("MyVideo"), 7),
                 QStringLiteral("shot_Scene_7.png"));
        QCOMPARE(profile.generateFileName(QStringLiteral("Another"), 7),
                 QStringLiteral("shot_Scene_7.png"));
        QCOMPARE(profile.generateFileName(QStringLiteral("MyVideo")),
                 QStringLiteral("shot_Scene_.png"));
    }

    void generateFileName_endsInDot_whenTypeIsEmpty()
    {
        FileNameProfile profile;
        profile.setFileOutputType(QString());
        QCOMPARE(profile.generateFileName(QStringLiteral("MyVideo"), 1),
                 QStringLiteral("MyVideo-00001."));
    }

    void generateFileName_passesEverythingThrough_data()
    {
        QTest::addColumn<QString>("part");
        QTest::newRow("placeholder") << QStringLiteral("%1%2%L1");
        QTest::newRow("path separators") << QStringLiteral("../a/b\\c");
        QTest::newRow("quotes and stars") << QStringLiteral("\"*?<>|:'");
        QTest::newRow("emoji") << QStringLiteral("🎬日本語");
        QTest::newRow("spaces") << QStringLiteral("  ");
        QTest::newRow("dots") << QStringLiteral("a.b.c");
        QTest::newRow("500 characters") << QString(500, QLatin1Char('x'));
    }

    void generateFileName_passesEverythingThrough()
    {
        QFETCH(QString, part);
        FileNameProfile profile;
        profile.setFileOutputPrefix(part);
        profile.setFileOutputSuffix(part);
        QCOMPARE(profile.generateFileName(part, 3),
                 part + part + part + QStringLiteral("00003.jpeg"));
    }

    void generateFileName_leavesBaseEmpty_whenNeitherIsGiven()
    {
        QCOMPARE(FileNameProfile().generateFileName(QString(), 1), QStringLiteral("-00001.jpeg"));
    }

    void fileOutputExamples_showsTheFirstPicture()
    {
        FileNameProfile profile;
        QCOMPARE(profile.fileOutputExamples(), QStringLiteral("MyVideo-00001.jpeg"));
        profile.setFileOutputPrefix(QStringLiteral("a "));
        QCOMPARE(profile.fileOutputExamples(), QStringLiteral("a MyVideo-00001.jpeg"));
    }

    void profile_doesNotChange_whenSavedAndReadBackAsText()
    {
        const TestHome home;
        ProfileKeeper keeper;
        ProfileManager writer(QStringLiteral("a.ini"), keeper.factory<FileNameProfile>(), false);
        FileNameProfile saved;
        saved.setFileOutputPrefix(QStringLiteral(" pre, \"fix\"; "));
        saved.setFileBaseName(QStringLiteral("base/=\\"));
        saved.setFileOutputSuffix(QString());
        saved.setFileOutputType(QStringLiteral("tiff"));
        saved.setFileOutputCounterPadZeros(false);
        writer.addProfile(&saved);
        writer.saveProfiles();
        QVERIFY(home.copySettingsFile(QStringLiteral("a.ini"), QStringLiteral("b.ini")));

        const ProfileManager reader(QStringLiteral("b.ini"), keeper.factory<FileNameProfile>(),
                                    false);
        QCOMPARE(reader.profiles().size(), 1);
        const auto* loaded = qobject_cast<FileNameProfile*>(reader.profiles().constFirst());
        QVERIFY(loaded);
        QCOMPARE(loaded->fileOutputPrefix(), saved.fileOutputPrefix());
        QCOMPARE(loaded->fileBaseName(), saved.fileBaseName());
        QCOMPARE(loaded->fileOutputSuffix(), QString());
        QCOMPARE(loaded->fileOutputType(), QStringLiteral("tiff"));
        QCOMPARE(loaded->fileOutputCounterPadZeros(), false);
    }

    void profileManager_givesOneManagerWithAnUnnamedProfile()
    {
        const TestHome home;
        ProfileManager* const manager = FileNameProfile::profileManager();
        QCOMPARE(FileNameProfile::profileManager(), manager);
        QCOMPARE(manager->profiles().size(), 1);
        QVERIFY(qobject_cast<FileNameProfile*>(manager->profiles().constFirst()));
        QCOMPARE(manager->profiles().constFirst()->name(), QStringLiteral("[Unnamed Settings]"));
        QVERIFY(QFileInfo(home.settingsFile(QStringLiteral("FileNameProfiles.ini"))).isFile());
        const std::unique_ptr<BaseProfile> made(manager->createProfile());
        QVERIFY(qobject_cast<FileNameProfile*>(made.get()));
        QCOMPARE(made->name(), QString());
    }
};

QTEST_GUILESS_MAIN(FileNameProfileTest)
#include "FileNameProfileTest.moc"
