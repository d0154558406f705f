#include "ui/dialogs/FileNameProfileDialog.h"

#include "imaging/ImageFormats.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/widgets/DialogSize.h"
#include "ui/widgets/EqualWidths.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/GroupBoxMargins.h"
#include "ui_FileNameProfileDialog.h"

#include <QFileInfo>
#include <QFormLayout>

namespace {

constexpr QSize fileNameProfileLetters{72, 22};

} // namespace

FileNameProfileDialog::FileNameProfileDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::FileNameProfileDialog>())
{
    m_ui->setupUi(this);
    GroupBoxMargins::apply(*this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    arrangeButtons();
    alignCaptions();

    connect(m_ui->profileSelector, &ProfileSelector::profileSelected, this,
            &FileNameProfileDialog::profileSelected);
    connect(m_ui->profileSelector, &ProfileSelector::profileNameTextChanged, this,
            &FileNameProfileDialog::profileNameTextChanged);
    connect(m_ui->profileSelector, &ProfileSelector::fieldChanged, this,
            &FileNameProfileDialog::fieldChanged);
    fillTypes();
    connect(m_ui->profileSelector, &ProfileSelector::profileDeleted, this,
            [this](BaseProfile* profile) {
                if (profile == m_selectedProfile) {
                    m_selectedProfile = nullptr;
                }
            });
    loadProfiles();
    DialogSize::open(*this, fileNameProfileLetters);
}

FileNameProfileDialog::~FileNameProfileDialog() = default;

void FileNameProfileDialog::setSelectedProfile(FileNameProfile* profile)
{
    m_selectedProfile = profile;
    m_ui->profileSelector->loadProfile(profile);
    if (!profile) {
        m_ui->profileSelector->loadDefaultValues();
    }
    // The selector emits nothing for a profile that was selected already or is not listed.
    updateExampleDisplay();
}

void FileNameProfileDialog::setExampleFileName(const QString& fileName)
{
    m_exampleFileName = fileName;
    updateExampleDisplay();
}

void FileNameProfileDialog::loadProfiles()
{
    const auto bind = [this](const char* property, QWidget* widget) {
        m_ui->profileSelector->addField(new Field(property, widget, Field::noChoice, this));
    };
    bind("fileOutputPrefix", m_ui->formatPrefixLineEdit);
    bind("fileBaseName", m_ui->formatBasenameLineEdit);
    bind("fileOutputSuffix", m_ui->formatSuffixLineEdit);
    bind("fileOutputType", m_ui->formatFileExtensionComboBox);
    m_ui->profileSelector->loadProfiles(FileNameProfile::profileManager());
}

void FileNameProfileDialog::updateExampleDisplay()
{
    FileNameProfile entered;
    m_ui->profileSelector->loadFormIntoProfile(&entered);

    const QString baseName = QFileInfo(m_exampleFileName).baseName();
    m_ui->outputExampleVideoLabel->setText(m_exampleFileName);
    m_ui->formatBasenameLineEdit->setPlaceholderText(baseName);
    m_ui->outputExampleLabel->setText(entered.generateFileName(baseName, 1));
    m_ui->outputExampleWithoutCounterLabel->setText(entered.generateFileName(baseName));
}

void FileNameProfileDialog::profileSelected(BaseProfile* /*profile*/)
{
    updateExampleDisplay();
}

void FileNameProfileDialog::profileNameTextChanged(const QString& name)
{
    m_ui->saveButton->setEnabled(!name.isEmpty());
}

void FileNameProfileDialog::fieldChanged(Field* /*field*/)
{
    updateExampleDisplay();
}

void FileNameProfileDialog::on_resetToDefaultsButton_clicked()
{
    m_ui->profileSelector->loadDefaultValues();
    updateExampleDisplay();
}

void FileNameProfileDialog::on_cancelButton_clicked()
{
    reject();
}

void FileNameProfileDialog::on_saveButton_clicked()
{
    if (!m_ui->profileSelector->maySave()) {
        return;
    }
    m_selectedProfile = qobject_cast<FileNameProfile*>(m_ui->profileSelector->saveProfile());
    accept();
}

void FileNameProfileDialog::fillTypes()
{
    const QStringList types = ImageFormats::suffixes();
    for (const QString& extension : types) {
        // Bitmaps are large and hold no metadata.
        if (extension == QLatin1String("bmp")) {
            continue;
        }
        m_ui->formatFileExtensionComboBox->addItem(QLatin1Char('.') + extension, extension);
    }
}

void FileNameProfileDialog::arrangeButtons()
{
    // The button box knows the platform's order.
    m_ui->buttonBox->addButton(m_ui->resetToDefaultsButton, QDialogButtonBox::ResetRole);
    m_ui->buttonBox->addButton(m_ui->saveButton, QDialogButtonBox::AcceptRole);
    m_ui->buttonBox->addButton(m_ui->cancelButton, QDialogButtonBox::RejectRole);
}

void FileNameProfileDialog::alignCaptions()
{
    // The two forms are stacked and read as one.
    QList<QWidget*> captions;
    for (const QFormLayout* const form : {m_ui->formatLayout, m_ui->exampleLayout}) {
        for (int row = 0; row < form->rowCount(); ++row) {
            captions += form->itemAt(row, QFormLayout::LabelRole)->widget();
        }
    }
    EqualWidths::apply(captions);
}
