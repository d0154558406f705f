#include "ui/filmstrip/FilmstripDelegate.h"

#include "ui/filmstrip/SnapshotShelf.h"

#include <QPainter>

#include <algorithm>

namespace {

/// Area into which every small picture is fitted.
constexpr QSize pictureArea{112, 63};
constexpr int margin = 5;
constexpr int tickSize = 15;

QRect centred(const QSize& size, const QRect& area)
{
    const QSize fitting = size.scaled(area.size(), Qt::KeepAspectRatio);
    QRect rect(QPoint(), fitting);
    rect.moveCenter(area.center());
    return rect;
}

} // namespace

FilmstripDelegate::FilmstripDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_tick(QStringLiteral(":/Images/Check.svg"))
{}

QSize FilmstripDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const int time = option.fontMetrics.horizontalAdvance(QStringLiteral("00:00:00.000"));
    return {std::max(pictureArea.width(), time) + 2 * margin,
            pictureArea.height() + 2 * option.fontMetrics.lineSpacing() + 2 * margin + 2};
}

void FilmstripDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRectF frame = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    QColor ground = option.palette.color(QPalette::Highlight);
    if (!isSelected) {
        ground.setAlpha(option.state.testFlag(QStyle::State_MouseOver) ? 40 : 0);
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(ground);
    painter->drawRoundedRect(frame, 5, 5);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(option.palette.color(QPalette::Link), 2));
        painter->drawRoundedRect(frame, 5, 5);
    }

    const QRect inner = option.rect.adjusted(margin, margin, -margin, -margin);
    QRect picture(inner.topLeft(), pictureArea);
    picture.moveLeft(inner.left() + (inner.width() - picture.width()) / 2);
    painter->fillRect(picture, option.palette.color(QPalette::Shadow));
    paintPicture(*painter, picture, index);
    if (index.data(SnapshotShelf::IsSavedRole).toBool()) {
        paintSavedMark(*painter, picture, option.palette);
    }

    const QPalette::ColorRole role = isSelected ? QPalette::HighlightedText : QPalette::Text;
    painter->setPen(option.palette.color(role));
    const int lineHeight = option.fontMetrics.lineSpacing();
    QRect line(inner.left(), picture.bottom() + 3, inner.width(), lineHeight);
    painter->drawText(line, Qt::AlignCenter, index.data(SnapshotShelf::TimeRole).toString());
    line.translate(0, lineHeight);
    if (!isSelected) {
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
    }
    const QString profile = index.data(SnapshotShelf::ProfileRole).toString();
    painter->drawText(line, Qt::AlignCenter,
                      option.fontMetrics.elidedText(profile, Qt::ElideRight, line.width()));
    painter->restore();
}

void FilmstripDelegate::paintPicture(QPainter& painter, const QRect& area,
                                     const QModelIndex& index) const
{
    const QImage thumbnail = index.data(SnapshotShelf::ThumbnailRole).value<QImage>();
    if (!thumbnail.isNull()) {
        painter.drawImage(centred(thumbnail.size(), area), thumbnail);
    }
}

void FilmstripDelegate::paintSavedMark(QPainter& painter, const QRect& picture,
                                       const QPalette& palette) const
{
    const QRect mark(picture.right() - tickSize - 2, picture.top() + 3, tickSize, tickSize);
    painter.setPen(QPen(palette.color(QPalette::HighlightedText), 1.5));
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawEllipse(mark);
    m_tick.paint(&painter, mark.adjusted(2, 2, -2, -2));
}
