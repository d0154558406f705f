#include "imaging/Rendering.h"

#include "imaging/ImageProcessingManager.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

#include <memory>
#include <thread>
#include <utility>
#include <vector>

using testsupport::contentOf;
using testsupport::TestDir;

namespace {

QImage gradient(const QSize& size, QImage::Format format = QImage::Format_RGB888)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixelColor(x, y, QColor(x * 7 % 256, y * 5 % 256, (x + y) % 256));
        }
    }
    return image.convertToFormat(format);
}

/// Smaller, brighter, with more contrast.
std::unique_ptr<ImageProfile> someProfile()
{
    auto profile = std::make_unique<ImageProfile>();
    profile->setSameSizeAsVideo(false);
    profile->setImageWidth(200);
    profile->setImageHeight(120);
    profile->setMaintainAspectRatio(true);
    profile->setImageContrast(20);
    profile->setImageBrightness(15);
    profile->setImageQuality(70);
    return profile;
}

std::unique_ptr<WatermarkProfile> someText()
{
    auto profile = std::make_unique<WatermarkProfile>();
    profile->setText(QStringLiteral("© Morvantile"));
    profile->setTextFont(QFont(QStringLiteral("DejaVu Sans"), 14));
    return profile;
}

} // namespace

/// From a frame to its picture and its file, by values.
class RenderingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallImage_keepsItsSize_unlessTheRecipeEnlarges();
    void render_givesTheSame_asTheManagerDoesForTheProfile_data();
    void render_givesTheSame_asTheManagerDoesForTheProfile();
    void recipe_staysWhatItWas_whenTheProfileChanges();
    void render_givesTheSame_inManyThreadsAtOnce();
    void render_copiesNothing_whereNothingChangesAndTheImageIsHandedOver();
    void render_sharesNothing_withAnImageThatIsKept();
    void render_fails_withAReason_withoutAnImage();
    void save_writesTheSame_asTheManagerDoesForTheProfiles_data();
    void save_writesTheSame_asTheManagerDoesForTheProfiles();
    void save_keepsAnExistingFile_whenToldSo();
};

void RenderingTest::render_givesTheSame_asTheManagerDoesForTheProfile_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("hasWatermark");
    for (const QImage::Format format : {QImage::Format_RGB888, QImage::Format_ARGB32,
                                        QImage::Format_RGB32, QImage::Format_Grayscale8}) {
        for (const bool hasWatermark : {false, true}) {
            QTest::addRow("format %d, %s", format, hasWatermark ? "text" : "plain")
                << int(format) << hasWatermark;
        }
    }
}

void RenderingTest::render_givesTheSame_asTheManagerDoesForTheProfile()
{
    QFETCH(const int, format);
    QFETCH(const bool, hasWatermark);
    const auto profile = someProfile();
    const auto text = hasWatermark ? someText() : nullptr;
    const QImage image = gradient({320, 240}, QImage::Format(format));
    const imaging::Rendering made = imaging::render(image, recipes::of(*profile, text.get()));
    QCOMPARE(made.error, QString());
    QCOMPARE(made.image.size(), QSize(160, 120));
    QCOMPARE(made.image,
             ImageProcessingManager::instance()->processImage(image, profile.get(), text.get()));
}

void RenderingTest::recipe_staysWhatItWas_whenTheProfileChanges()
{
    auto profile = someProfile();
    auto text = someText();
    const ImageRecipe recipe = recipes::of(*profile, text.get());
    const QImage image = gradient({320, 240});
    const QImage before = imaging::render(image, recipe).image;
    profile->setImageBrightness(-90);
    text->setText(QStringLiteral("another"));
    QCOMPARE(imaging::render(image, recipe).image, before);
    QVERIFY(imaging::render(image, recipes::of(*profile, text.get())).image != before);
    profile.reset();
    text.reset();
    QCOMPARE(imaging::render(image, recipe).image, before);
}

void RenderingTest::render_givesTheSame_inManyThreadsAtOnce()
{
    constexpr int threadCount = 4;
    constexpr int rounds = 10;
    const auto text = someText();
    const ImageRecipe recipe = recipes::of(*someProfile(), text.get());
    const QImage image = gradient({320, 240});
    const QImage expected = imaging::render(image, recipe).image;
    std::vector<int> same(threadCount, 0);
    std::vector<std::thread> threads;
    for (int& count : same) {
        threads.emplace_back([&count, &recipe, &image, &expected] {
            for (int i = 0; i < rounds; ++i) {
                count += imaging::render(image, recipe).image == expected ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(same, std::vector<int>(threadCount, rounds));
}

void RenderingTest::render_copiesNothing_whereNothingChangesAndTheImageIsHandedOver()
{
    ImageRecipe recipe;
    recipe.keepsSize = true;
    QImage image = gradient({320, 240}, QImage::Format_RGB888);
    const QImage before = image.copy();
    const uchar* const pixels = image.constBits();
    const QImage made = imaging::render(std::move(image), recipe).image;
    QCOMPARE(made.constBits(), pixels);
    QCOMPARE(made, before);
}

void RenderingTest::render_sharesNothing_withAnImageThatIsKept()
{
    ImageRecipe recipe;
    recipe.keepsSize = true;
    QImage image = gradient({320, 240}, QImage::Format_RGB888);
    image.setDevicePixelRatio(2.0);
    const QImage made = imaging::render(image, recipe).image;
    QVERIFY(made.constBits() != image.constBits());
    QCOMPARE(made.devicePixelRatio(), 1.0);
    QCOMPARE(image.devicePixelRatio(), 2.0);
}

void RenderingTest::render_fails_withAReason_withoutAnImage()
{
    const imaging::Rendering made = imaging::render(QImage(), ImageRecipe());
    QVERIFY(made.image.isNull());
    QVERIFY(!made.error.isEmpty());
}

void RenderingTest::save_writesTheSame_asTheManagerDoesForTheProfiles_data()
{
    QTest::addColumn<QString>("type");
    for (const char* const type : {"jpeg", "JPG", "png", "bmp", "tiff"}) {
        QTest::newRow(type) << QString::fromLatin1(type);
    }
}

void RenderingTest::save_writesTheSame_asTheManagerDoesForTheProfiles()
{
    QFETCH(const QString, type);
    const TestDir dir;
    const auto profile = someProfile();
    FileNameProfile names;
    names.setFileOutputType(type);
    const QImage image = gradient({320, 240});
    const QString ours = dir.filePath(QStringLiteral("ours.") + type);
    const QString theirs = dir.filePath(QStringLiteral("theirs.") + type);
    QCOMPARE(
        imaging::save(ours, image, recipes::of(*profile).jpegQuality, type, ExistingFile::Keep),
        WriteResult::Written);
    QVERIFY(ImageProcessingManager::instance()->saveImage(theirs, image, profile.get(), &names));
    QVERIFY(!contentOf(ours).isEmpty());
    QCOMPARE(contentOf(ours), contentOf(theirs));
}

void RenderingTest::save_keepsAnExistingFile_whenToldSo()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("there.png"));
    const QImage image = gradient({32, 24});
    QCOMPARE(imaging::save(path, image, 90, QStringLiteral("png"), ExistingFile::Keep),
             WriteResult::Written);
    const QByteArray before = contentOf(path);
    QCOMPARE(imaging::save(path, gradient({64, 24}), 90, QStringLiteral("png"), ExistingFile::Keep),
             WriteResult::AlreadyExists);
    QCOMPARE(contentOf(path), before);
    QCOMPARE(
        imaging::save(path, gradient({64, 24}), 90, QStringLiteral("png"), ExistingFile::Replace),
        WriteResult::Written);
    QVERIFY(contentOf(path) != before);
}

void RenderingTest::smallImage_keepsItsSize_unlessTheRecipeEnlarges()
{
    const auto sizeOf = [](const QSize& size, const QSize& bounds, bool enlarges) {
        ImageRecipe recipe;
        recipe.keepsSize = false;
        recipe.keepsAspectRatio = true;
        recipe.bounds = bounds;
        recipe.enlarges = enlarges;
        return imaging::render(gradient(size), recipe).image.size();
    };
    QCOMPARE(sizeOf(QSize(64, 48), QSize(128, 128), false), QSize(64, 48));
    QCOMPARE(sizeOf(QSize(64, 48), QSize(64, 48), false), QSize(64, 48));
    QCOMPARE(sizeOf(QSize(64, 48), QSize(128, 24), false), QSize(32, 24));
    QCOMPARE(sizeOf(QSize(64, 48), QSize(128, 128), true), QSize(128, 96));
}

QTEST_MAIN(RenderingTest)
#include "RenderingTest.moc"
