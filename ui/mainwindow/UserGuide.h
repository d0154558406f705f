#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

/// Where the user guide is.
namespace UserGuide {

/// The address of the guide, or of one section of it. The installed guide, which can be read
/// offline, where there is one; else the one on the product's web site.
[[nodiscard]] QUrl url(const QString& section = {});

/// The same, with the installed guide looked for in the folders, in this order.
[[nodiscard]] QUrl url(const QString& section, const QStringList& folders);

} // namespace UserGuide
