#include "ui/mainwindow/DropHighlight.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

/// A frame in the theme's colour between black and white lines, so that it is visible on any
/// ground.
constexpr int lineWidth = 2;
constexpr int colourWidth = 4;
constexpr int textMargin = 12;

} // namespace

DropHighlight::DropHighlight(QWidget& window)
    : QWidget(&window)
{
    setObjectName(QStringLiteral("dropHighlight"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    auto* const label = new QLabel(tr("Drop to open"), this);
    label->setObjectName(QStringLiteral("dropHighlightLabel"));
    label->setMargin(textMargin);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Highlight);
    label->setForegroundRole(QPalette::HighlightedText);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label, 0, Qt::AlignCenter);
    hide();
}

void DropHighlight::appear()
{
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void DropHighlight::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const auto drawFrame = [&](int from, int width, const QColor& colour) {
        QPen pen(colour, width);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        const double inset = from + width / 2.0;
        painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
    };
    drawFrame(0, lineWidth, Qt::black);
    drawFrame(lineWidth, colourWidth, palette().color(QPalette::Highlight));
    drawFrame(lineWidth + colourWidth, lineWidth, Qt::white);
}
