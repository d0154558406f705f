#include "ui/widgets/Announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AnnouncerInterface : public QAccessibleWidget
{
public:
    explicit AnnouncerInterface(Announcer& announcer)
        : QAccessibleWidget(&announcer, QAccessible::Notification)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const auto& announcer = static_cast<const Announcer&>(*widget());
        return kind == QAccessible::Name ? announcer.text() : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    auto* const announcer = qobject_cast<Announcer*>(object);
    return announcer != nullptr && className == QLatin1String("Announcer")
               ? new AnnouncerInterface(*announcer)
               : nullptr;
}

} // namespace

Announcer::Announcer(QWidget* parent)
    : QWidget(parent)
{
    static const bool isKnown = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(isKnown)
    setObjectName(QStringLiteral("announcer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    // Only visible widgets are announced.
    resize(1, 1);
}

void Announcer::announce(const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    m_text = text;
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    // Screen readers announce notifications when they are shown.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}
