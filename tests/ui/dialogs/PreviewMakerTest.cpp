#include "ui/dialogs/PreviewMaker.h"

#include "tests/support/Patience.h"

#include <QSignalSpy>
#include <QTest>

using testsupport::patienceMs;

class PreviewMakerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallPictures_areMadeAtOnce_inTheirOrder();
    void largePicture_isMadeInTheBackground();
    void largeResult_isMadeInTheBackground();
    void onlyTheNewest_isAnswered();
    void cancelledPictures_areNotAnswered();
};

namespace {

const QSize small(320, 240);
const QSize large(3840, 2160);

QImage filled(const QSize& size, int grey)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(QColor(grey, grey, grey));
    return image;
}

ImageRecipe brighter(int by)
{
    ImageRecipe recipe;
    recipe.brightness = by;
    return recipe;
}

struct Maker
{
    [[nodiscard]] QVector<QImage> answer(int number) const
    {
        return answers.at(number).first().value<QVector<QImage>>();
    }

    PreviewMaker maker;
    QSignalSpy answers{&maker, &PreviewMaker::made};
};

int greyOf(const QImage& image)
{
    return qGray(image.pixel(10, 10));
}

} // namespace

void PreviewMakerTest::smallPictures_areMadeAtOnce_inTheirOrder()
{
    Maker made;
    made.maker.make(filled(small, 100), {brighter(0), brighter(40)});
    QCOMPARE(made.answers.size(), 1);
    QCOMPARE(made.answer(0).size(), 2);
    QCOMPARE(greyOf(made.answer(0).first()), 100);
    QCOMPARE(greyOf(made.answer(0).last()), 140);
}

void PreviewMakerTest::largePicture_isMadeInTheBackground()
{
    Maker made;
    made.maker.make(filled(large, 100), {brighter(40)});
    QVERIFY(made.answers.isEmpty());
    QVERIFY(made.answers.wait(patienceMs));
    QCOMPARE(made.answer(0).size(), 1);
    QCOMPARE(made.answer(0).first().size(), large);
    QCOMPARE(greyOf(made.answer(0).first()), 140);
}

void PreviewMakerTest::largeResult_isMadeInTheBackground()
{
    ImageRecipe enlarging;
    enlarging.keepsSize = false;
    enlarging.bounds = large;
    Maker made;
    made.maker.make(filled(small, 100), {enlarging});
    QVERIFY(made.answers.isEmpty());
    QVERIFY(made.answers.wait(patienceMs));
    QCOMPARE(made.answer(0).first().size(), large);
}

void PreviewMakerTest::onlyTheNewest_isAnswered()
{
    Maker made;
    made.maker.make(filled(large, 100), {brighter(10)});
    made.maker.make(filled(large, 100), {brighter(20)});
    made.maker.make(filled(large, 100), {brighter(30)});
    QVERIFY(made.answers.wait(patienceMs));
    QCOMPARE(greyOf(made.answer(0).first()), 130);
    // What is small overtakes what is still being made.
    made.maker.make(filled(large, 100), {brighter(40)});
    made.maker.make(filled(small, 100), {brighter(50)});
    QTest::qWait(300);
    QCOMPARE(made.answers.size(), 2);
    QCOMPARE(greyOf(made.answer(1).first()), 150);
}

void PreviewMakerTest::cancelledPictures_areNotAnswered()
{
    Maker made;
    made.maker.make(filled(large, 100), {brighter(10)});
    made.maker.cancel();
    QTest::qWait(300);
    QVERIFY(made.answers.isEmpty());
}

QTEST_GUILESS_MAIN(PreviewMakerTest)
#include "PreviewMakerTest.moc"
