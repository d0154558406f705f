#pragma once

#include "stills/Options.h"

#include <QImage>
#include <QString>
#include <QVector>

namespace stills {

/// Collects the small pictures of one video and draws them side by side. Drawing needs a
/// QGuiApplication for its fonts. One thread at a time may use an object.
class ContactSheet
{
public:
    /// Maximum number of pictures.
    static constexpr int mostPictures = 2000;

    explicit ContactSheet(const Sheet& sheet)
        : m_sheet(sheet)
    {}

    /// False if the maximum is reached, or the sheet would be too large.
    [[nodiscard]] bool add(const QImage& picture, qint64 timeMs);

    [[nodiscard]] int count() const { return m_pictures.size(); }

    /// The sheet. Null if it would be too large or memory runs out.
    /// @param title  in large letters, unless the options have another one
    /// @param facts  text below the title
    [[nodiscard]] QImage draw(const QString& title, const QString& facts) const;

private:
    struct Picture
    {
        QImage image;
        qint64 timeMs = 0;
    };

    Sheet m_sheet;
    QSize m_largest{1, 1}; ///< width and height of the largest pictures
    QVector<Picture> m_pictures;
};

} // namespace stills
