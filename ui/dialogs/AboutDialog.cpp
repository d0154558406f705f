#include "ui/dialogs/AboutDialog.h"

#include "product/ProductInfo.h"
#include "ui_AboutDialog.h"

#include <QPixmap>
#include <QPushButton>

namespace {

QString link(const QString& address, const QString& text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>")
        .arg(address.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutDialog>())
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    layout()->setSizeConstraint(QLayout::SetFixedSize);

    enlargeHeading();
    fillLinks();
    m_ui->buttonBox->button(QDialogButtonBox::Close)->setDefault(true);
    m_ui->buttonBox->button(QDialogButtonBox::Close)->setFocus();
    m_ui->versionLabel->setText(tr("Version: %1").arg(ProductInfo::version()));
    m_ui->iconLabel->setPixmap(QPixmap(QStringLiteral(":/Images/MVIcon1024.png")));
}

AboutDialog::~AboutDialog() = default;

/// Scales with the system's font size.
void AboutDialog::enlargeHeading()
{
    constexpr double factor = 1.4;
    constexpr int leastLetters = 24;
    QFont font = m_ui->headingLabel->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    m_ui->headingLabel->setFont(font);
    m_ui->headingLabel->setMinimumWidth(leastLetters * QFontMetrics(font).averageCharWidth());
}

void AboutDialog::fillLinks()
{
    const QString host = ProductInfo::domain();
    m_ui->webLinkLabel->setText(link(QStringLiteral("https://") + host + QLatin1Char('/'), host));

    const QString mail = QStringLiteral("support@") + host;
    m_ui->mailLinkLabel->setText(link(QStringLiteral("mailto:") + mail, mail));
}
