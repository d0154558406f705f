#include "ui/theme/ActionButton.h"

#include "ui/theme/Spacing.h"
#include "ui/theme/TextSize.h"
#include "ui/theme/Theme.h"

#include <QEvent>
#include <QLabel>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace {

/// Between the icon and the text.
constexpr int iconGap = 6;

} // namespace

ActionButton::ActionButton(QWidget* parent)
    : QPushButton(parent)
{}

void ActionButton::setKeys(const QString& keys)
{
    m_keys = keys;
    updateGeometry();
    update();
}

QString ActionButton::keys() const
{
    return m_keys;
}

QFont ActionButton::keysFont() const
{
    return theme::font(theme::TextSize::Caption, font());
}

int ActionButton::widthOfKeys() const
{
    return m_keys.isEmpty()
               ? 0
               : QFontMetrics(keysFont()).horizontalAdvance(m_keys) + theme::spacing::wide;
}

void ActionButton::giveWayTo(QLabel& label, int lines)
{
    m_label = &label;
    m_lines = lines;
    label.installEventFilter(this);
}

void ActionButton::fit()
{
    if (m_label == nullptr) {
        return;
    }
    const QFontMetrics metrics = m_label->fontMetrics();
    // Lines break between words, so not all of them are full.
    const int slack = m_lines == 1 ? 0 : metrics.averageCharWidth() * 8;
    const int wanted = metrics.horizontalAdvance(m_label->text()) / m_lines + slack;
    const int room = m_label->geometry().united(geometry()).width() - theme::spacing::normal;
    const int whole = sizeHint().width();
    const int iconAlone = iconSize().width() + 2 * theme::spacing::normal;
    setFixedWidth(room - wanted < whole ? iconAlone : whole);
}

bool ActionButton::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_label && event->type() == QEvent::Resize) {
        fit();
    }
    return QPushButton::eventFilter(watched, event);
}

QSize ActionButton::sizeHint() const
{
    return minimumSizeHint() + QSize(widthOfKeys(), 0);
}

QSize ActionButton::minimumSizeHint() const
{
    return QPushButton::sizeHint() + QSize(icon().isNull() ? 0 : iconGap, 0);
}

void ActionButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const bool isOnAccent = isEnabled() && Theme::isPrimary(*this);
    const int keysWidth = width() < sizeHint().width() ? 0 : widthOfKeys();
    painter.setPen(palette().color(isOnAccent ? QPalette::HighlightedText : QPalette::ButtonText));
    paintLabel(painter, rect().adjusted(0, 0, -keysWidth, 0));
    if (keysWidth == 0) {
        return;
    }
    painter.setPen(
        palette().color(isOnAccent ? QPalette::HighlightedText : QPalette::PlaceholderText));
    painter.setFont(keysFont());
    const QRect place(width() - keysWidth, 0, keysWidth - theme::spacing::wide, height());
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignRight);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), place),
                     int(side | Qt::AlignVCenter), m_keys);
}

/// The area is given for left-to-right layouts.
void ActionButton::paintLabel(QPainter& painter, const QRect& area) const
{
    const QSize edge = icon().isNull() ? QSize(0, 0) : iconSize();
    const int gap = icon().isNull() ? 0 : iconGap;
    const int flags = Qt::AlignVCenter | Qt::TextShowMnemonic;
    const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    // The margins give way before the text does.
    const int leastWidth = edge.width() + gap + textWidth + 2 * theme::spacing::normal;
    const bool isIconAlone = !icon().isNull() && width() < leastWidth;
    const int wanted = edge.width() + (isIconAlone ? 0 : gap + textWidth);
    const int left = area.left() + std::max(0, area.width() - wanted) / 2;
    const auto placed = [this](const QRect& place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    if (!icon().isNull()) {
        const int top = area.top() + (area.height() - edge.height()) / 2;
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        icon().paint(&painter, placed({QPoint(left, top), edge}), Qt::AlignCenter, mode);
    }
    if (isIconAlone) {
        return;
    }
    const QRect line(left + edge.width() + gap, area.top(), textWidth, area.height());
    painter.drawText(placed(line), flags, text());
}
