#pragma once

#include "imaging/PictureSource.h"

#include <QtAV/StoredColours.h>

#include <QDateTime>
#include <QString>
#include <QtGlobal>

/// What is known of a snapshot that is kept, without its picture. A plain value, for any thread.
struct KeptSnapshot
{
    QString id;                  ///< of letters, digits and hyphens; its files are named by it
    QDateTime takenAt;           ///< in UTC
    QString profileId;           ///< of the image profile that it is shown and saved with
    QString profileName;         ///< as it was called then
    PictureSource source;        ///< the video and the frame
    QtAV::StoredColours colours; ///< of the values of high dynamic range, where there are some
    bool isSaved = false;        ///< as a file of the user's
};
