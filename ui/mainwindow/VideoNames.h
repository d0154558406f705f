#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Videos in folders, told by their names alone: those that the dialog for opening offers. They
/// read the disk, and may be called in any thread.
namespace VideoNames {

using IsCancelled = std::function<bool()>;

/// Whether the dialog for opening would offer the file; also a path.
[[nodiscard]] bool isVideo(const QString& name);

/// The names of the folder's own videos, in the natural order.
[[nodiscard]] QStringList in(const QString& folder);

/// The paths of a folder's videos and, behind them, those of the folders in it, in the natural
/// order. Hidden folders and links to folders are passed over, and so is what lies deeper than
/// sixteen folders.
///
/// @param most  so many are looked for
[[nodiscard]] QStringList below(const QString& folder, int most, const IsCancelled& isCancelled);

/// The videos that come before and behind one in its folder, as paths; empty where none does. The
/// one between need not be there.
struct Neighbours
{
    QString previous;
    QString next;
};

[[nodiscard]] Neighbours neighboursOf(const QString& video);

} // namespace VideoNames
