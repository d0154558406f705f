#pragma once

#include "imaging/PictureSource.h"

#include <QtAV/StoredColours.h>

#include <QDateTime>
#include <QString>
#include <QtGlobal>

/// Properties of a stored snapshot, without its picture. A plain value, for any thread.
struct KeptSnapshot
{
    QString id;                  ///< consists of letters, digits and hyphens; base of its file
                                 ///< names
    QDateTime takenAt;           ///< in UTC
    QString profileId;           ///< of the image profile used to show and save it
    QString profileName;         ///< its name at that time
    PictureSource source;        ///< the video and the frame
    QtAV::StoredColours colours; ///< of the stored values of high dynamic range, if there are any
    bool isSaved = false;        ///< saved by the user as a file
};
