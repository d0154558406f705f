#include "ui/widgets/TimecodeField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

namespace {

/// The style sheet highlights a field with this property.
constexpr char refusedProperty[] = "refused";

} // namespace

TimecodeField::TimecodeField(QWidget* parent)
    : QStackedWidget(parent)
    , m_label(new QLabel(this))
    , m_edit(new QLineEdit(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_label->setObjectName(QStringLiteral("positionLabel"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAccessibleDescription(tr("Position"));
    m_label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_edit->setObjectName(QStringLiteral("timecodeEdit"));
    m_edit->setAccessibleName(tr("Go to time"));
    m_edit->setFocusPolicy(Qt::ClickFocus);
    m_edit->installEventFilter(this);
    addWidget(m_label);
    addWidget(m_edit);
    connect(m_edit, &QLineEdit::returnPressed, this, [this] { Q_EMIT entered(m_edit->text()); });
    connect(m_edit, &QLineEdit::textEdited, this, [this] { setRefused(false); });
}

void TimecodeField::setTextWidth(int width)
{
    m_textWidth = width;
    updateGeometry();
}

QSize TimecodeField::sizeHint() const
{
    m_label->ensurePolished();
    m_edit->ensurePolished();
    const int textWidth = m_label->fontMetrics().horizontalAdvance(m_label->text());
    return {m_label->sizeHint().width() + std::max(0, m_textWidth - textWidth),
            std::max(m_label->sizeHint().height(), m_edit->sizeHint().height())};
}

QSize TimecodeField::minimumSizeHint() const
{
    return sizeHint();
}

bool TimecodeField::isTyping() const
{
    return currentWidget() == m_edit;
}

bool TimecodeField::isRefused() const
{
    return m_edit->property(refusedProperty).toBool();
}

void TimecodeField::setTime(const QString& text)
{
    m_label->setText(text);
}

QString TimecodeField::time() const
{
    return m_label->text();
}

void TimecodeField::type()
{
    if (!isEnabled()) {
        return;
    }
    m_edit->setText(time());
    setRefused(false);
    setCurrentWidget(m_edit);
    m_edit->setFocus(Qt::OtherFocusReason);
    m_edit->selectAll();
    // A form moves this widget in the tab order, but not what it contains.
    setTabOrder(this, m_edit);
    // Otherwise Shift+Tab would return here.
    setFocusPolicy(Qt::NoFocus);
}

void TimecodeField::finish()
{
    setRefused(false);
    setCurrentWidget(m_label);
    setFocusPolicy(Qt::StrongFocus);
}

void TimecodeField::refuse()
{
    setRefused(true);
    m_edit->selectAll();
}

void TimecodeField::setRefused(bool isRefused)
{
    m_edit->setProperty(refusedProperty, isRefused);
    style()->unpolish(m_edit);
    style()->polish(m_edit);
}

void TimecodeField::giveUp()
{
    finish();
    Q_EMIT givenUp();
}

bool TimecodeField::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_edit || !isTyping()) {
        return QStackedWidget::eventFilter(watched, event);
    }
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress) {
            giveUp();
        }
        return true;
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            finish();
        }
    }
    return QStackedWidget::eventFilter(watched, event);
}

void TimecodeField::focusInEvent(QFocusEvent* event)
{
    QStackedWidget::focusInEvent(event);
    // The user does not want to type when the window becomes active again.
    if (event->reason() != Qt::ActiveWindowFocusReason) {
        type();
    }
}

void TimecodeField::mousePressEvent(QMouseEvent* event)
{
    QStackedWidget::mousePressEvent(event);
    type();
}

void TimecodeField::changeEvent(QEvent* event)
{
    QStackedWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        finish();
    }
}
