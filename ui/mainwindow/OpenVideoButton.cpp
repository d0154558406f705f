#include "ui/mainwindow/OpenVideoButton.h"

#include "ui/mainwindow/RecentFiles.h"
#include "ui/mainwindow/ReturnKey.h"
#include "ui/theme/ActionButton.h"
#include "ui/theme/Icons.h"
#include "ui/theme/Spacing.h"
#include "ui/theme/TextSize.h"
#include "ui/widgets/PlainText.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int pictureEdge = 48;
constexpr int mostEntries = 5;
constexpr int widestEntry = 360;

} // namespace

OpenVideoButton::OpenVideoButton(QWidget* parent)
    : QPushButton(parent)
    , m_invitation(new QWidget(this))
    , m_picture(new QLabel(m_invitation))
    , m_text(new QLabel(m_invitation))
    , m_hint(new QLabel(tr("or drop one here"), m_invitation))
    , m_recentLabel(new QLabel(tr("Opened last"), m_invitation))
    , m_list(new QWidget(m_invitation))
{
    m_text->setTextFormat(Qt::PlainText);
    m_text->setProperty(theme::textSizeProperty, QStringLiteral("title"));
    m_text->setWordWrap(true);
    m_hint->setProperty(theme::quietProperty, true);
    m_recentLabel->setProperty(theme::quietProperty, true);
    m_recentLabel->setProperty(theme::textSizeProperty, QStringLiteral("caption"));
    for (QLabel* const label : {m_picture, m_text, m_hint, m_recentLabel}) {
        label->setAlignment(Qt::AlignCenter);
    }
    auto* const list = new QVBoxLayout(m_list);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(0);
    auto* const layout = new QVBoxLayout(m_invitation);
    layout->setSpacing(theme::spacing::normal);
    layout->addStretch();
    layout->addWidget(m_picture);
    layout->addWidget(m_text);
    layout->addWidget(m_hint);
    layout->addSpacing(theme::spacing::wide);
    layout->addWidget(m_recentLabel);
    layout->addWidget(m_list, 0, Qt::AlignHCenter);
    layout->addStretch();
    setRecentFiles({});
    showPicture();
}

void OpenVideoButton::invite(const QString& text)
{
    setText(text);
    m_text->setText(text);
    m_invitation->show();
    showEntriesWithRoom();
}

void OpenVideoButton::withdraw()
{
    m_invitation->hide();
}

void OpenVideoButton::setRecentFiles(const QStringList& paths)
{
    qDeleteAll(m_entries);
    m_entries.clear();
    const QStringList present = RecentFiles::present(paths).mid(0, mostEntries);
    for (const QString& path : present) {
        m_entries.append(makeEntry(path));
    }
    QWidget* before = this;
    for (QPushButton* const entry : qAsConst(m_entries)) {
        setTabOrder(before, entry);
        before = entry;
    }
    ReturnKey::pressControls(*m_list);
    showEntriesWithRoom();
}

QPushButton* OpenVideoButton::makeEntry(const QString& path)
{
    auto* const entry = new ActionButton(m_list);
    const QString name = QFileInfo(path).fileName();
    QString shown = fontMetrics().elidedText(name, Qt::ElideMiddle, widestEntry);
    entry->setIcon(theme::icon(QStringLiteral("Film")));
    entry->setText(shown.replace(QLatin1Char('&'), QLatin1String("&&")));
    entry->setAccessibleName(name);
    entry->setObjectName(QStringLiteral("recentFileButton"));
    const QString place = QDir::toNativeSeparators(path);
    entry->setToolTip(asPlainText(place));
    // By default that is the tool tip, with its markup.
    entry->setAccessibleDescription(place);
    entry->setFlat(true);
    entry->setFocusPolicy(Qt::TabFocus);
    entry->setCursor(Qt::PointingHandCursor);
    m_list->layout()->addWidget(entry);
    // Queued, because opening a video rebuilds the list, which must not happen while its button is
    // pressed.
    connect(
        entry, &QPushButton::clicked, this, [this, path] { Q_EMIT fileChosen(path); },
        Qt::QueuedConnection);
    return entry;
}

/// Hides the older entries if there is little room.
void OpenVideoButton::showEntriesWithRoom()
{
    m_invitation->setGeometry(rect());
    for (QPushButton* const entry : qAsConst(m_entries)) {
        entry->show();
    }
    int shown = m_entries.size();
    const auto hasRoom = [this] {
        m_list->layout()->invalidate();
        m_invitation->layout()->invalidate();
        const int wanted = m_invitation->layout()->heightForWidth(width());
        return wanted <= height();
    };
    m_recentLabel->setVisible(shown > 0);
    m_list->setVisible(shown > 0);
    while (shown > 0 && !hasRoom()) {
        --shown;
        m_entries[shown]->hide();
        m_recentLabel->setVisible(shown > 0);
        m_list->setVisible(shown > 0);
    }
    m_picture->setVisible(true);
    m_picture->setVisible(hasRoom());
}

/// The button's own text is only for screen readers; the labels show it.
void OpenVideoButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
}

void OpenVideoButton::resizeEvent(QResizeEvent* event)
{
    QPushButton::resizeEvent(event);
    showEntriesWithRoom();
}

void OpenVideoButton::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    const bool changesPicture =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange;
    if (changesPicture) {
        showPicture();
    }
}

void OpenVideoButton::showPicture()
{
    const QIcon film = theme::icon(QStringLiteral("Film"), theme::Ink::Quiet);
    m_picture->setPixmap(film.pixmap(pictureEdge, pictureEdge));
}
