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

/// Writes pictures under free names, or names that may be replaced. Whatever the rule for existing
/// files, a file written by this object is never overwritten. One thread at a time may use an
/// object.
class PictureFiles
{
public:
    /// Returns the name of a file without its folder, as the system's bytes, for an attempt from 1
    /// on. All attempts give different names.
    using NameForAttempt = std::function<QByteArray(int attempt)>;

    struct Outcome
    {
        enum class Kind {
            Written,
            Skipped, ///< a file of that name already exists
            Failed,
            NoRoom, ///< failed, as would every other picture in this folder
        };

        Kind kind = Kind::Failed;
        QString path;            ///< of the file that was written or that exists
        QString error;           ///< a text for people
        qint64 bytes = 0;        ///< of the picture, unless it was skipped
        qint64 missingBytes = 0; ///< how much does not fit, if that is the reason
    };

    /// An encoded picture, or the file that FilePublisher::prepare() has written it to. The latter
    /// only if nothing is overwritten.
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

    /// Writes a picture. Before the first one in a folder, removes what killed programs have left
    /// there, see FilePublisher::sweep().
    ///
    /// @param folder  must exist
    [[nodiscard]] Outcome write(const QString& folder, const NameForAttempt& name,
                                const Content& content);

    /// True if any file has that name.
    [[nodiscard]] static bool exists(const QString& folder, const QByteArray& name);

private:
    [[nodiscard]] Outcome writeUnder(const QString& path, const Content& content, bool replaces);

    Existing m_existing;
    QSet<QString> m_written;
    QString m_sweptFolder; ///< the folder that was swept last
};

} // namespace stills
