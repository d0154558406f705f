#include "ui/mainwindow/TransportLine.h"

#include "ui/theme/Spacing.h"

#include <QGridLayout>

#include <algorithm>

namespace {

/// Minimum number of letters of the facts for a single row.
constexpr int lettersOfFacts = 24;

int widthOf(const QWidget* part)
{
    return std::max(part->sizeHint().width(), part->minimumWidth());
}

} // namespace

TransportLine::TransportLine(QWidget* parent)
    : QFrame(parent)
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(theme::spacing::wide);
    m_layout->setVerticalSpacing(theme::spacing::tight);
}

void TransportLine::setParts(QWidget& time, QWidget& buttons, QWidget& facts, QWidget& take)
{
    m_time = &time;
    m_buttons = &buttons;
    m_facts = &facts;
    m_take = &take;
    arrange(true);
}

bool TransportLine::isInOneRow() const
{
    return m_isInOneRow;
}

/// The minimum of two rows also applies to one row, so that the line can become two rows.
QSize TransportLine::minimumSizeHint() const
{
    if (m_time == nullptr) {
        return QFrame::minimumSizeHint();
    }
    const int gap = m_layout->horizontalSpacing();
    const int above = widthOf(m_time) + gap;
    const int below = widthOf(m_buttons) + gap + m_take->minimumSizeHint().width();
    return {std::max(above, below), m_layout->minimumSize().height()};
}

void TransportLine::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    if (m_time == nullptr) {
        return;
    }
    const bool hasRoom = width() >= widthOfOneRow();
    if (hasRoom != m_isInOneRow) {
        arrange(hasRoom);
    }
}

int TransportLine::widthOfOneRow() const
{
    const int facts = lettersOfFacts * fontMetrics().averageCharWidth();
    const int parts = widthOf(m_time) + widthOf(m_buttons) + facts + widthOf(m_take);
    return parts + 3 * m_layout->horizontalSpacing();
}

void TransportLine::arrange(bool inOneRow)
{
    m_isInOneRow = inOneRow;
    for (QWidget* const part : {m_time, m_buttons, m_facts, m_take}) {
        m_layout->removeWidget(part);
    }
    if (inOneRow) {
        m_layout->addWidget(m_time, 0, 0);
        m_layout->addWidget(m_buttons, 0, 1);
        m_layout->addWidget(m_facts, 0, 2);
        m_layout->addWidget(m_take, 0, 3);
    } else {
        m_layout->addWidget(m_time, 0, 0, 1, 2, Qt::AlignLeft);
        m_layout->addWidget(m_facts, 0, 2, 1, 2);
        m_layout->addWidget(m_buttons, 1, 0, 1, 3, Qt::AlignLeft);
        m_layout->addWidget(m_take, 1, 3);
    }
    m_layout->setColumnStretch(2, 1);
}
