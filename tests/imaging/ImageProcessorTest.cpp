#include "imaging/ImageProcessor.h"

#include <QTest>

class ImageProcessorTest : public QObject
{
    Q_OBJECT

private slots:
    void brightnessContrast_isNull_forLackOfAPicture()
    {
        ImageProcessor processor;
        QVERIFY(processor.brightnessContrast(10, 1.5).isNull());
    }
};

QTEST_GUILESS_MAIN(ImageProcessorTest)
#include "ImageProcessorTest.moc"
