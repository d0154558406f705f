#pragma once

#include "stills/Options.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

class HiddenFile;

namespace stills {

/// Writes pictures under names that are free, or that may be taken. Whatever the rule for existing
/// files, no file that this object has written is written over. One thread at a time.
class PictureFiles
{
public:
    /// The name of a file without its folder, as the system's bytes, for an attempt from 1 on. No
    /// two attempts give the same name.
    using NameForAttempt = std::function<QByteArray(int attempt)>;

    struct Outcome
    {
        enum class Kind {
            Written,
            Skipped, ///< there is a file of that name already
            Failed,
            NoRoom, ///< failed, and so would every other picture in this folder
        };

        Kind kind = Kind::Failed;
        QString path;            ///< of the file that was written or that exists
        QString error;           ///< for people
        qint64 bytes = 0;        ///< of the picture, unless it was skipped
        qint64 missingBytes = 0; ///< that there is no room for, where that is the reason
    };

    /// An encoded picture, or the file that FilePublisher::prepare() has put it into; a file only
    /// where nothing is overwritten.
    struct Content
    {
        Content(QByteArray encoded, std::shared_ptr<HiddenFile> prepared = {})
            : bytes(std::move(encoded))
            , file(std::move(prepared))
        {}

        [[nodiscard]] qint64 size() const;

        QByteArray bytes;
        std::shared_ptr<HiddenFile> file;
    };

    explicit PictureFiles(Existing existing)
        : m_existing(existing)
    {}

    /// Removes what killed programs have left in the folder first, see FilePublisher::sweep().
    ///
    /// @param folder  exists
    [[nodiscard]] Outcome write(const QString& folder, const NameForAttempt& name,
                                const Content& content);

    /// Something has that name.
    [[nodiscard]] static bool exists(const QString& folder, const QByteArray& name);

private:
    [[nodiscard]] Outcome writeUnder(const QString& path, const Content& content, bool replaces);

    Existing m_existing;
    QSet<QString> m_written;
    QString m_sweptFolder; ///< from which what killed programs left was removed last
};

} // namespace stills
