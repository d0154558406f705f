#include "ui/mainwindow/BestFramesDialog.h"

#include "ui/mainwindow/BestFramesFinder.h"
#include "ui/widgets/DialogSize.h"
#include "ui/widgets/TimeText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

constexpr QSize pictureSize{144, 81};
/// Between a picture, its time and the edges of their cell.
constexpr int gap = 6;
/// As many can be seen without scrolling, however small the dialog is made.
constexpr int leastCells = 3;

} // namespace

BestFramesDialog::BestFramesDialog(QWidget* parent)
    : QDialog(parent)
    , m_finder(new BestFramesFinder(this))
    , m_label(new QLabel(this))
    , m_list(new QListWidget(this))
    , m_takeButton(new QPushButton(tr("Take Snapshot"), this))
{
    setWindowTitle(tr("Best of These"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    layOut();
    connect(m_finder, &BestFramesFinder::found, this, &BestFramesDialog::showProposals);
    connect(m_list, &QListWidget::itemClicked, this,
            [this] { Q_EMIT frameChosen(currentMs().value_or(0)); });
    connect(m_list, &QListWidget::itemActivated, this, &BestFramesDialog::takeCurrent);
    connect(m_takeButton, &QPushButton::clicked, this, &BestFramesDialog::takeCurrent);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_takeButton->setEnabled(row >= 0); });
    reset();
}

BestFramesDialog::~BestFramesDialog() = default;

void BestFramesDialog::layOut()
{
    m_list->setObjectName(QStringLiteral("bestFramesList"));
    m_list->setAccessibleName(tr("Best frames"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setWrapping(false);
    m_list->setFlow(QListView::LeftToRight);
    m_list->setIconSize(pictureSize);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Errors are long.
    m_label->setWordWrap(true);
    m_takeButton->setObjectName(QStringLiteral("takeBestButton"));
    m_takeButton->setToolTip(tr("Take a snapshot of the selected frame"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_takeButton, QDialogButtonBox::ActionRole);
    // Return belongs to the list: a default button would also react and take a second snapshot.
    m_takeButton->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    DialogSize::polish(*this);
    const QSize cell(pictureSize.width() + 2 * gap,
                     pictureSize.height() + m_list->fontMetrics().height() + 3 * gap);
    m_list->setGridSize(cell);
    const int frame = 2 * m_list->frameWidth() + 4;
    m_list->setMinimumWidth(leastCells * cell.width() + frame);
    m_list->setFixedHeight(cell.height() + frame +
                           m_list->horizontalScrollBar()->sizeHint().height());
    const QMargins margins = layout->contentsMargins();
    DialogSize::openInPixels(
        *this, {proposals * cell.width() + frame + margins.left() + margins.right(), 0});
}

void BestFramesDialog::propose(const QString& video, QtAV::Deinterlacing deinterlacing,
                               const VideoStretch& stretch)
{
    reset();
    m_label->setText(tr("Looking for the sharpest frames from %1 to %2\u2026")
                         .arg(timeText(stretch.fromMs), timeText(stretch.toMs)));
    m_finder->search(video, deinterlacing, stretch, proposals, pictureSize * devicePixelRatioF());
    show();
    raise();
}

void BestFramesDialog::reset()
{
    m_finder->cancel();
    m_list->clear();
    m_takeButton->setEnabled(false);
    m_label->clear();
}

void BestFramesDialog::showProposals(const BestFrames& best)
{
    for (const BestFrame& frame : best.frames) {
        const QPixmap pixmap = QPixmap::fromImage(frame.picture);
        auto* const item = new QListWidgetItem(QIcon(pixmap), timeText(frame.ms), m_list);
        item->setData(Qt::UserRole, frame.ms);
    }
    if (!best.error.isEmpty()) {
        m_label->setText(best.error);
    } else if (best.frames.isEmpty()) {
        m_label->setText(tr("All frames here are black, blurred or at a cut."));
    } else {
        m_label->setText(tr("A click goes to the frame, a double click takes it."));
    }
}

void BestFramesDialog::takeCurrent()
{
    if (const std::optional<qint64> ms = currentMs()) {
        Q_EMIT snapshotWanted(*ms);
    }
}

std::optional<qint64> BestFramesDialog::currentMs() const
{
    const QListWidgetItem* const item = m_list->currentItem();
    return item == nullptr ? std::nullopt
                           : std::optional<qint64>(item->data(Qt::UserRole).toLongLong());
}

/// Nobody waits for a search while the dialog is hidden.
void BestFramesDialog::hideEvent(QHideEvent* event)
{
    m_finder->cancel();
    QDialog::hideEvent(event);
}
