#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

/// Location of the user guide.
namespace UserGuide {

/// The URL of the guide, or of one of its sections: the installed guide, which works offline, or
/// else the one on the product's web site.
[[nodiscard]] QUrl url(const QString& section = {});

/// Like above, searching these folders in order for the installed guide.
[[nodiscard]] QUrl url(const QString& section, const QStringList& folders);

} // namespace UserGuide
