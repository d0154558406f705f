#include "ui/widgets/PartsLabel.h"

#include <QPainter>
#include <QStringList>
#include <QStyle>

namespace {

const QChar unbreakableSpace(QChar::Nbsp);

QString unbreakable(QString text)
{
    return text.replace(QLatin1Char(' '), unbreakableSpace);
}

} // namespace

PartsLabel::PartsLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void PartsLabel::setSeparator(const QString& separator)
{
    m_separator = separator;
    update();
}

void PartsLabel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QString whole = textInUnbreakableParts();
    style()->drawItemText(&painter, contentsRect(), flags(), palette(), isEnabled(),
                          fits(whole) ? whole : text(), foregroundRole());
}

QString PartsLabel::textInUnbreakableParts() const
{
    if (m_separator.isEmpty()) {
        return text();
    }
    const QString end = unbreakable(m_separator.chopped(1)) + QLatin1Char(' ');
    QStringList parts = text().split(m_separator);
    for (QString& part : parts) {
        part = unbreakable(part);
    }
    return parts.join(end);
}

bool PartsLabel::fits(const QString& text) const
{
    const QRect room = contentsRect();
    const QSize needed = style()->itemTextRect(fontMetrics(), room, flags(), true, text).size();
    // Lines have fractions of a pixel, so only a whole line more is too high.
    const int rounding = fontMetrics().lineSpacing() / 2;
    return needed.width() <= room.width() && needed.height() <= room.height() + rounding;
}

/// As QLabel paints plain text.
int PartsLabel::flags() const
{
    const bool isFromRight = layoutDirection() == Qt::RightToLeft;
    return int(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextWordWrap |
           (isFromRight ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
}
