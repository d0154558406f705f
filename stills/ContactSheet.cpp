#include "stills/ContactSheet.h"

#include "stills/SheetLayout.h"
#include "stills/Texts.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace stills {

namespace {

const QColor paper(0x1b, 0x1c, 0x1e);
const QColor ink(0xf2, 0xf2, 0xf2);
const QColor paleInk(0xb4, 0xb6, 0xba);
constexpr int spaceUnderTitle = 12;

QFont fontOf(int pixels, QFont::Weight weight = QFont::Normal)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

/// Fonts that suit the pictures' size.
struct Letters
{
    explicit Letters(int pictureWidth)
        : title(fontOf(std::clamp(pictureWidth / 13, 12, 40), QFont::Bold))
        , facts(fontOf(std::clamp(pictureWidth / 20, 10, 26)))
        , caption(fontOf(std::clamp(pictureWidth / 21, 9, 24)))
    {}

    [[nodiscard]] int captionHeight() const
    {
        return QFontMetrics(caption).height() + QFontMetrics(caption).height() / 2;
    }

    QFont title;
    QFont facts;
    QFont caption;
};

/// A title and the text below it, either of which may be empty.
struct Heading
{
    QString title;
    QString facts;

    [[nodiscard]] int height(const Letters& letters) const
    {
        int height = title.isEmpty() ? 0 : QFontMetrics(letters.title).lineSpacing();
        height += facts.isEmpty() ? 0 : QFontMetrics(letters.facts).lineSpacing() * 5 / 4;
        return height > 0 ? height + spaceUnderTitle : 0;
    }

    void draw(QPainter& painter, QRect area, const Letters& letters) const
    {
        if (!title.isEmpty()) {
            const QFontMetrics metrics(letters.title);
            painter.setFont(letters.title);
            painter.setPen(ink);
            painter.drawText(area, Qt::AlignLeft | Qt::AlignTop,
                             metrics.elidedText(title, Qt::ElideMiddle, area.width()));
            area.setTop(area.top() + metrics.lineSpacing());
        }
        const QFontMetrics metrics(letters.facts);
        painter.setFont(letters.facts);
        painter.setPen(paleInk);
        area.setTop(area.top() + metrics.lineSpacing() / 4);
        painter.drawText(area, Qt::AlignLeft | Qt::AlignTop,
                         metrics.elidedText(facts, Qt::ElideRight, area.width()));
    }
};

QRect centred(QSize size, const QRect& area)
{
    QRect rect(QPoint(), size);
    rect.moveCenter(area.center());
    return rect;
}

} // namespace

bool ContactSheet::add(const QImage& picture, qint64 timeMs)
{
    const QSize largest = m_largest.expandedTo(picture.size());
    const qint64 pixels = qint64(largest.width()) * largest.height() * (count() + 1);
    if (count() >= mostPictures || pixels > SheetLayout::mostPixels) {
        return false;
    }
    m_largest = largest;
    m_pictures.append({picture, timeMs});
    return true;
}

QImage ContactSheet::draw(const QString& title, const QString& facts) const
{
    const Letters letters(m_largest.width());
    Heading heading{title, facts};
    if (m_sheet.title) {
        heading = {readable(pathOf(*m_sheet.title)), {}};
    }
    const SheetLayout layout({count(), m_largest, m_sheet.columns, m_sheet.gap,
                              m_sheet.hasTimes ? letters.captionHeight() : 0,
                              heading.height(letters)});
    if (!layout.isPossible()) {
        return {};
    }
    QImage sheet(layout.size(), QImage::Format_RGB32);
    if (sheet.isNull()) {
        return {};
    }
    sheet.fill(paper);
    QPainter painter(&sheet);
    heading.draw(painter, layout.titleArea(), letters);
    painter.setFont(letters.caption);
    painter.setPen(paleInk);
    for (int i = 0; i < count(); ++i) {
        const QImage& image = m_pictures.at(i).image;
        painter.drawImage(centred(image.size(), layout.pictureArea(i)).topLeft(), image);
        if (m_sheet.hasTimes) {
            painter.drawText(layout.captionArea(i), Qt::AlignCenter,
                             exactClockTime(m_pictures.at(i).timeMs));
        }
    }
    return sheet;
}

} // namespace stills
