#include "ui/mainwindow/SavedNotice.h"

#include "ui/theme/ActionButton.h"
#include "ui/theme/Icons.h"
#include "ui/theme/Spacing.h"
#include "ui/theme/TextSize.h"
#include "ui/widgets/ElidedLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVariant>

namespace {

constexpr int markEdge = 18;

} // namespace

/// A line icon, drawn anew when the colours change.
class SavedNotice::Mark : public QWidget
{
public:
    explicit Mark(QWidget* parent)
        : QWidget(parent)
    {
        setFixedSize(markEdge, markEdge);
    }

    void setIcon(const QIcon& icon)
    {
        m_icon = icon;
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    QIcon m_icon;
};

SavedNotice::SavedNotice(QWidget* parent)
    : QWidget(parent)
    , m_mark(new Mark(this))
    , m_text(new ElidedLabel(this))
    , m_folderButton(new ActionButton(this))
{
    m_text->setObjectName(QStringLiteral("savedLabel"));
    m_text->setProperty(theme::textSizeProperty, QStringLiteral("caption"));
    m_folderButton->setText(tr("Show in Folder"));
    m_folderButton->setObjectName(QStringLiteral("showInFolderButton"));
    m_folderButton->setIcon(theme::icon(QStringLiteral("Folder")));
    m_folderButton->setToolTip(tr("Show the file that was saved last in its folder"));
    m_folderButton->setFocusPolicy(Qt::TabFocus);
    m_folderButton->setFlat(true);
    m_folderButton->hide();
    QSizePolicy policy = m_folderButton->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_folderButton->setSizePolicy(policy);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::spacing::normal);
    layout->addWidget(m_mark);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_folderButton);
    m_folderButton->giveWayTo(*m_text, 1);
}

void SavedNotice::tellSaved(const QString& text)
{
    tell(QStringLiteral("Done"), text);
    m_folderButton->show();
}

void SavedNotice::tellFailed(const QString& text, const QString& cause)
{
    tell(QStringLiteral("Warning"), text, cause);
}

void SavedNotice::clear()
{
    tell({}, {});
}

void SavedNotice::tell(const QString& iconName, const QString& text, const QString& details)
{
    m_mark->setIcon(theme::icon(iconName));
    m_text->setText(text);
    m_text->setToolTip(details);
    m_folderButton->fit();
}

QString SavedNotice::text() const
{
    return m_text->text();
}

QPushButton& SavedNotice::folderButton() const
{
    return *m_folderButton;
}
