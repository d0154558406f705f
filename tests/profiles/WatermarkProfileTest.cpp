#include "profiles/WatermarkProfile.h"

#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QSettings>
#include <QTest>

#include <limits>

class WatermarkProfileTest : public QObject
{
    Q_OBJECT

private:
    /// Writes a picture of one colour into the watermark folder. The cache of pictures outlives a
    /// case, so that each case uses file names of its own.
    [[nodiscard]] static bool writePicture(const QString& fileName, const QColor& color,
                                           const char* format = "PNG")
    {
        QImage picture(4, 3, QImage::Format_ARGB32);
        picture.fill(color);
        return picture.save(WatermarkProfile::pathForImage(fileName), format);
    }

    static QImage imageOf(const QString& fileName)
    {
        WatermarkProfile profile;
        profile.setImageFile(fileName);
        return profile.image();
    }

private slots:
    // Must stay first, because it tests the cache before its first use.
    void image_isNullWithoutTouchingTheDisk_whenFileNameIsEmptyAtFirstUse()
    {
        const TestHome home;
        QVERIFY(WatermarkProfile().image().isNull());
        QVERIFY(!QFileInfo::exists(home.path(QStringLiteral("data"))));
    }

    void constructor_setsDefaultsAndNoName()
    {
        const WatermarkProfile profile(nullptr);
        QCOMPARE(profile.name(), QString());
        QCOMPARE(profile.id().size(), 36);
        QCOMPARE(profile.watermarkType(), 0);
        QCOMPARE(profile.alignmentIndex(), 8);
        QCOMPARE(profile.xMargin(), 15);
        QCOMPARE(profile.yMargin(), 15);
        QCOMPARE(profile.alpha(), 255);
        QCOMPARE(profile.text(), QString());
        QCOMPARE(profile.textFont().family(), QStringLiteral("Times"));
        QCOMPARE(profile.textFont().pointSize(), 12);
        QCOMPARE(profile.textFont().weight(), int(QFont::Normal));
        QCOMPARE(profile.textFont().italic(), false);
        QCOMPARE(profile.textColor(), QColor(255, 255, 255, 225));
        QCOMPARE(profile.textShadowColor(), QColor(0, 0, 0, 175));
        QCOMPARE(profile.textShadowXOffset(), 0);
        QCOMPARE(profile.textShadowYOffset(), 0);
        QCOMPARE(profile.textShadowOffset(), QPoint(0, 0));
        QCOMPARE(profile.imageFile(), QString());
        QCOMPARE(profile.textShadow(), true);
        QCOMPARE(profile.relativeSize(), false);
        QCOMPARE(profile.relativeWidth(), 20);
    }

    void constructor_ignoresItsArgument()
    {
        WatermarkProfile other(nullptr);
        other.setText(QStringLiteral("other"));
        const WatermarkProfile profile(&other);
        QCOMPARE(profile.text(), QString());
        QVERIFY(profile.id() != other.id());
        QCOMPARE(profile.parent(), nullptr);
    }

    void properties_areStoredInDeclaredOrderWithoutTheImage()
    {
        QCOMPARE(persistedPropertyNames(WatermarkProfile::staticMetaObject),
                 QStringList(
                     {QStringLiteral("objectName"), QStringLiteral("name"), QStringLiteral("id"),
                      QStringLiteral("watermarkType"), QStringLiteral("alignmentIndex"),
                      QStringLiteral("xMargin"), QStringLiteral("yMargin"), QStringLiteral("alpha"),
                      QStringLiteral("text"), QStringLiteral("textFont"),
                      QStringLiteral("textColor"), QStringLiteral("textShadowColor"),
                      QStringLiteral("textShadowXOffset"), QStringLiteral("textShadowYOffset"),
                      QStringLiteral("imageFile"), QStringLiteral("textShadow"),
                      QStringLiteral("relativeSize"), QStringLiteral("relativeWidth")}));
        QVERIFY(WatermarkProfile::staticMetaObject.indexOfProperty("image") >= 0);
    }

    void alignmentFromIndex_givesFlags_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("flags");
        const QList<int> flags{33, 36, 34, 129, 132, 130, 65, 68, 66};
        for (int index = 0; index < flags.size(); ++index) {
            QTest::addRow("%d", index) << index << flags.at(index);
        }
        for (const int index :
             {-1, 9, 100, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            QTest::addRow("%d", index) << index << 66;
        }
    }

    void alignmentFromIndex_givesFlags()
    {
        QFETCH(int, index);
        QFETCH(int, flags);
        QCOMPARE(int(WatermarkProfile::alignmentFromIndex(index)), flags);
        WatermarkProfile profile;
        profile.setAlignmentIndex(index);
        QCOMPARE(profile.alignmentIndex(), index);
        QCOMPARE(int(profile.alignment()), flags);
    }

    void textShadowOffset_joinsBothOffsets()
    {
        WatermarkProfile profile;
        profile.setTextShadowXOffset(-3);
        profile.setTextShadowYOffset(7);
        QCOMPARE(profile.textShadowOffset(), QPoint(-3, 7));
    }

    void pathForImage_makesTheFolderInTheDataLocation()
    {
        const TestHome home;
        const QString folder = home.path(QStringLiteral("data/Morvantile/Morvantile/watermarks"));
        QCOMPARE(WatermarkProfile::pathForImage(QStringLiteral("logo é.png")),
                 folder + QStringLiteral("/logo é.png"));
        QVERIFY(QFileInfo(folder).isDir());
    }

    void pathForImage_stillGivesThePath_whenTheFolderCannotBeMade()
    {
        const TestHome home;
        QFile obstacle(home.path(QStringLiteral("data")));
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        QCOMPARE(WatermarkProfile::pathForImage(QStringLiteral("a.png")),
                 home.path(QStringLiteral("data/Morvantile/Morvantile/watermarks/a.png")));
        QVERIFY(imageOf(QStringLiteral("unreachable.png")).isNull());
    }

    void image_isReadFromTheWatermarkFolder()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("read.png"), Qt::red));
        const QImage image = imageOf(QStringLiteral("read.png"));
        QCOMPARE(image.size(), QSize(4, 3));
        QCOMPARE(image.pixelColor(1, 1), QColor(Qt::red));
    }

    void image_isRead_whenTheExtensionNamesAnotherFormat()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("a bitmap.png"), Qt::green, "BMP"));
        QCOMPARE(imageOf(QStringLiteral("a bitmap.png")).pixelColor(0, 0), QColor(Qt::green));
    }

    void image_isNull_whenTheFileIsMissing()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("present.png"), Qt::red));
        QVERIFY(!imageOf(QStringLiteral("present.png")).isNull());
        QVERIFY(imageOf(QStringLiteral("missing.png")).isNull());
    }

    void image_staysNull_whenTheMissingFileAppearsUnderTheCachedName()
    {
        const TestHome home;
        QVERIFY(imageOf(QStringLiteral("late.png")).isNull());
        QVERIFY(writePicture(QStringLiteral("late.png"), Qt::red));
        QVERIFY(imageOf(QStringLiteral("late.png")).isNull());
    }

    void image_isNull_whenTheFileIsNoPicture()
    {
        const TestHome home;
        QFile file(WatermarkProfile::pathForImage(QStringLiteral("text.png")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        QVERIFY(imageOf(QStringLiteral("text.png")).isNull());
    }

    void image_isUpright_asItsFileSays()
    {
        const TestHome home;
        QImage stored(32, 16, QImage::Format_RGB32);
        stored.fill(Qt::red);
        QImageWriter writer(WatermarkProfile::pathForImage(QStringLiteral("turned.jpg")));
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        QVERIFY(writer.write(stored));
        QCOMPARE(imageOf(QStringLiteral("turned.jpg")).size(), QSize(16, 32));
    }

    void image_isNullAgain_whenTheFileNameIsEmptied()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("emptied.png"), Qt::red));
        WatermarkProfile profile;
        profile.setImageFile(QStringLiteral("emptied.png"));
        QVERIFY(!profile.image().isNull());
        profile.setImageFile(QString());
        QVERIFY(profile.image().isNull());
    }

    void image_isNotReadAgain_whenTheFileIsReplacedUnderTheCachedName()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("replaced.png"), Qt::red));
        QCOMPARE(imageOf(QStringLiteral("replaced.png")).pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(writePicture(QStringLiteral("replaced.png"), Qt::blue));
        QCOMPARE(imageOf(QStringLiteral("replaced.png")).pixelColor(0, 0), QColor(Qt::red));
    }

    void image_isReadAgain_whenAnotherPictureCameBetween()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("one.png"), Qt::red));
        QVERIFY(writePicture(QStringLiteral("two.png"), Qt::green));
        QCOMPARE(imageOf(QStringLiteral("one.png")).pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(writePicture(QStringLiteral("one.png"), Qt::blue));
        QCOMPARE(imageOf(QStringLiteral("two.png")).pixelColor(0, 0), QColor(Qt::green));
        QCOMPARE(imageOf(QStringLiteral("one.png")).pixelColor(0, 0), QColor(Qt::blue));
    }

    void image_isReadAgain_whenTheNameDiffersInCaseAlone()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("case.png"), Qt::red));
        QCOMPARE(imageOf(QStringLiteral("case.png")).pixelColor(0, 0), QColor(Qt::red));
        // Also overwritten through the other name, for case-insensitive file systems.
        QVERIFY(writePicture(QStringLiteral("CASE.png"), Qt::blue));
        QCOMPARE(imageOf(QStringLiteral("CASE.png")).pixelColor(0, 0), QColor(Qt::blue));
    }

    void image_sharesTheCachedPixels_untilTheCallerPaints()
    {
        const TestHome home;
        QVERIFY(writePicture(QStringLiteral("shared.png"), Qt::red));
        QImage first = imageOf(QStringLiteral("shared.png"));
        QCOMPARE(imageOf(QStringLiteral("shared.png")).constBits(), first.constBits());
        first.fill(Qt::blue);
        QCOMPARE(imageOf(QStringLiteral("shared.png")).pixelColor(0, 0), QColor(Qt::red));
    }

    void profile_doesNotChange_whenSavedAndReadBackAsText()
    {
        const TestHome home;
        ProfileKeeper keeper;
        ProfileManager writer(QStringLiteral("a.ini"), keeper.factory<WatermarkProfile>(), false);
        WatermarkProfile saved;
        saved.setWatermarkType(1);
        saved.setAlignmentIndex(3);
        saved.setXMargin(-4);
        saved.setYMargin(5000);
        saved.setAlpha(128);
        saved.setText(QStringLiteral("© \"me\", 100 %\nline two 🎬"));
        QFont font(QStringLiteral("DejaVu Sans, \"Special\""), 33, QFont::Bold, true);
        font.setUnderline(true);
        font.setStrikeOut(true);
        saved.setTextFont(font);
        saved.setTextColor(QColor(1, 2, 3, 4));
        saved.setTextShadowColor(QColor(250, 251, 252, 253));
        saved.setTextShadowXOffset(-2);
        saved.setTextShadowYOffset(9);
        saved.setImageFile(QStringLiteral("logo.png"));
        writer.addProfile(&saved);
        writer.saveProfiles();
        QVERIFY(home.copySettingsFile(QStringLiteral("a.ini"), QStringLiteral("b.ini")));

        const ProfileManager reader(QStringLiteral("b.ini"), keeper.factory<WatermarkProfile>(),
                                    false);
        const auto* loaded = qobject_cast<WatermarkProfile*>(reader.profiles().value(0));
        QVERIFY(loaded);
        QCOMPARE(loaded->watermarkType(), 1);
        QCOMPARE(loaded->alignmentIndex(), 3);
        QCOMPARE(loaded->xMargin(), -4);
        QCOMPARE(loaded->yMargin(), 5000);
        QCOMPARE(loaded->alpha(), 128);
        QCOMPARE(loaded->text(), saved.text());
        QCOMPARE(loaded->textFont().toString(), font.toString());
        QCOMPARE(loaded->textColor(), QColor(1, 2, 3, 4));
        QCOMPARE(loaded->textShadowColor(), QColor(250, 251, 252, 253));
        QCOMPARE(loaded->textShadowOffset(), QPoint(-2, 9));
        QCOMPARE(loaded->imageFile(), QStringLiteral("logo.png"));
    }

    void save_writesNoImage()
    {
        const TestHome home;
        QSettings settings(home.path(QStringLiteral("a.ini")), QSettings::IniFormat);
        WatermarkProfile().save(settings);
        QVERIFY(!settings.contains(QStringLiteral("image")));
        QCOMPARE(settings.allKeys().size(), 18);
    }

    void load_takesColourNames_whenTypedByHand()
    {
        const TestHome home;
        QVERIFY(home.writeSettingsFile(QStringLiteral("hand.ini"),
                                       "[profiles]\nAB\\textColor=#80ff0000\n"
                                       "AB\\textShadowColor=no colour\n"));
        ProfileKeeper keeper;
        const ProfileManager manager(QStringLiteral("hand.ini"), keeper.factory<WatermarkProfile>(),
                                     false);
        const auto* loaded = qobject_cast<WatermarkProfile*>(manager.profiles().value(0));
        QVERIFY(loaded);
        QCOMPARE(loaded->textColor(), QColor(255, 0, 0, 128));
        QVERIFY(!loaded->textShadowColor().isValid());
    }

    void profileManager_givesOneManagerAndMakesNoProfile()
    {
        const TestHome home;
        ProfileManager* const manager = WatermarkProfile::profileManager();
        QCOMPARE(WatermarkProfile::profileManager(), manager);
        QVERIFY(manager->profiles().isEmpty());
        QCOMPARE(manager->lastUsedProfile(), nullptr);
        const QString file = home.settingsFile(QStringLiteral("WatermarkProfiles.ini"));
        QVERIFY(QFileInfo(file).isFile());
        const QSettings settings(file, QSettings::IniFormat);
        QCOMPARE(settings.allKeys(), QStringList());
        const std::unique_ptr<BaseProfile> made(manager->createProfile());
        QVERIFY(qobject_cast<WatermarkProfile*>(made.get()));
    }
};

QTEST_GUILESS_MAIN(WatermarkProfileTest)
#include "WatermarkProfileTest.moc"
