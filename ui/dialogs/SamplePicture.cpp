#include "ui/dialogs/SamplePicture.h"

#include <QImage>

QImage SamplePicture::image()
{
    return QImage(QStringLiteral(":/Images/watermarkBackground.jpg"))
        .convertToFormat(QImage::Format_RGB888);
}
