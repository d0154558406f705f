#include "ui/mainwindow/SnapshotPane.h"

#include "imaging/ImageProcessingManager.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/ReadyProfiles.h"
#include "ui/mainwindow/FolderSweeper.h"
#include "ui/mainwindow/SnapshotSummary.h"
#include "ui/theme/Icons.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/GroupBoxMargins.h"
#include "ui_SnapshotPane.h"

#include <QFileInfo>
#include <QSettings>

namespace {

const QString automaticKey = QStringLiteral("automaticFileName");

/// Fills the box with the manager's profiles and selects the last used one. Returns the selected
/// profile: the first one if the last used one is unknown.
BaseProfile* fillProfiles(QComboBox& box, const ProfileManager& manager)
{
    box.clear();
    const QList<BaseProfile*> profiles = manager.profiles();
    for (const BaseProfile* const profile : profiles) {
        box.addItem(profile->shownName(), profile->id());
    }
    BaseProfile* const lastUsed = manager.lastUsedProfile();
    if (lastUsed == nullptr) {
        return profiles.value(0);
    }
    box.setCurrentIndex(box.findData(lastUsed->id()));
    return lastUsed;
}

/// Makes the profile that the user chose in the box the last used one and returns it. Null for
/// none.
BaseProfile* chooseProfile(const QComboBox& box, ProfileManager& manager)
{
    BaseProfile* const profile = manager.profileForId(box.currentData().toString());
    if (profile != nullptr) {
        manager.setLastUsedProfile(profile);
    }
    return profile;
}

} // namespace

SnapshotPane::SnapshotPane(QSettings& settings, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::SnapshotPane>())
    , m_settings(settings)
    , m_sweeper(std::make_unique<FolderSweeper>())
    , m_saveDialog(settings)
    , m_maker(new SnapshotMaker(this))
{
    setObjectName(QStringLiteral("snapshotPane"));
    m_ui->setupUi(this);
    // Not set in the form: an unchecked group box disables its children while they are still being
    // created, and screen readers would keep treating them as plain areas.
    m_ui->automaticFileNameGroupBox->setChecked(false);
    GroupBoxMargins::apply(*this);
    connectControls();
    setupLooks();
    setControlsEnabled(false);
}

SnapshotPane::~SnapshotPane() = default;

void SnapshotPane::connectControls()
{
    connect(m_maker, &SnapshotMaker::captured, this, &SnapshotPane::made);
    connect(m_maker, &SnapshotMaker::remade, this, &SnapshotPane::takeRemade);
    connect(m_ui->saveButton, &QPushButton::clicked, this, [this] { save(); });
    connect(m_ui->originalSizeButton, &QPushButton::clicked, this,
            &SnapshotPane::chooseOriginalSize);
    const auto activated = QOverload<int>::of(&QComboBox::activated);
    connect(m_ui->imageProfileComboBox, activated, this, &SnapshotPane::chooseImageProfile);
    connect(m_ui->filenameProfileComboBox, activated, this, &SnapshotPane::chooseFileNameProfile);
    connect(m_ui->editImageProfileButton, &QPushButton::clicked, this,
            &SnapshotPane::imageProfilesRequested);
    connect(m_ui->editFileNameProfileButton, &QPushButton::clicked, this,
            &SnapshotPane::fileNameProfilesRequested);
    connect(m_ui->automaticFileNameGroupBox, &QGroupBox::toggled, this,
            &SnapshotPane::updateAutomaticFileNameDisplay);
    connect(m_ui->selectOutputFolderButton, &QPushButton::clicked, this,
            &SnapshotPane::chooseOutputFolder);
    // Not on every key, because each partial path would raise the counter.
    connect(m_ui->outputFolderLineEdit, &QLineEdit::editingFinished, this, [this] {
        noteTypedFolder();
        updateAutomaticFileNameDisplay();
    });
    // The field itself uses Space and the keys that take, copy and step.
    connect(m_ui->outputFolderLineEdit, &QLineEdit::returnPressed, this,
            &SnapshotPane::keyboardGivenUp);
    connect(&m_ui->savedNotice->folderButton(), &QPushButton::clicked, this,
            &SnapshotPane::showSavedFile);
}

void SnapshotPane::setupLooks()
{
    // Two lines, so that the snapshot keeps its size when its line appears. Their font is set when
    // the label is polished.
    m_ui->snapshotSummaryLabel->ensurePolished();
    m_ui->snapshotSummaryLabel->setFixedHeight(
        2 * m_ui->snapshotSummaryLabel->fontMetrics().lineSpacing());
    m_ui->snapshotSummaryLabel->setSeparator(SnapshotSummary::separator);
    m_ui->originalSizeButton->giveWayTo(*m_ui->snapshotSummaryLabel, 2);
    m_ui->snapshotImageView->setPlaceholder(theme::icon(QStringLiteral("Image"), theme::Ink::Quiet),
                                            tr("No snapshot yet"));
}

void SnapshotPane::restoreState()
{
    m_ui->automaticFileNameGroupBox->setChecked(m_settings.value(automaticKey).toBool());
    restoreOutputFolder();
}

void SnapshotPane::storeState()
{
    m_settings.setValue(automaticKey, m_ui->automaticFileNameGroupBox->isChecked());
}

void SnapshotPane::loadImageProfileComboBox()
{
    m_imageProfile = static_cast<ImageProfile*>(
        fillProfiles(*m_ui->imageProfileComboBox, *ImageProfile::profileManager()));
    Q_EMIT imageProfileChanged();
}

void SnapshotPane::loadFileNameProfileComboBox()
{
    m_fileNameProfile = static_cast<FileNameProfile*>(
        fillProfiles(*m_ui->filenameProfileComboBox, *FileNameProfile::profileManager()));
}

void SnapshotPane::setupFileDialogs()
{
    m_saveDialog.makeIn(*window());
}

void SnapshotPane::setVideo(const QString& path)
{
    // The field may still have the keyboard, and loses it only after its video.
    noteTypedFolder();
    m_video = path;
    if (path.isEmpty()) {
        return;
    }
    const QFileInfo video(path);
    m_saveDialog.followFolder(video);
    showOutputFolder(video.absolutePath());
    m_namesVideo.clear();
    followVideoForNames();
}

void SnapshotPane::capture(const CapturedPicture& picture)
{
    m_maker->capture(picture, recipes::of(*m_imageProfile));
}

bool SnapshotPane::isCapturing() const
{
    return m_maker->isCapturing();
}

void SnapshotPane::showNew(const MadeSnapshot& made, const QString& place)
{
    m_captured = made.picture;
    m_place = place;
    m_id.clear();
    followVideoForNames();
    showMade(made);
    m_isKept = m_image.isNull();
    m_ui->savedNotice->clear();
    showWhatIsNext();
}

void SnapshotPane::showEarlier(const CapturedPicture& picture, const QString& place,
                               const QString& id, bool isKept)
{
    m_captured = picture;
    m_place = place;
    m_id = id;
    m_isKept = isKept;
    followVideoForNames();
    m_ui->savedNotice->clear();
    processFullFrameImage(nullptr);
    showWhatIsNext();
}

void SnapshotPane::clear()
{
    m_maker->forgetRemaking();
    m_captured = CapturedPicture();
    m_image = QImage();
    m_isKept = true;
    m_id.clear();
    m_ui->snapshotImageView->setImage(m_image);
    m_ui->savedNotice->clear();
    followVideoForNames();
    showSummary();
    showWhatIsNext();
}

void SnapshotPane::setKept()
{
    m_isKept = true;
    showWhatIsNext();
}

void SnapshotPane::setControlsEnabled(bool on)
{
    m_ui->snapshotControlsFrame->setEnabled(on);
    if (!on) {
        fillOutputFolder({});
    }
    updateAutomaticFileNameDisplay();
}

void SnapshotPane::processFullFrameImage(ImageProfile* profile)
{
    m_maker->remake(m_captured, recipes::of(profile == nullptr ? *m_imageProfile : *profile));
}

void SnapshotPane::takeRemade(const MadeSnapshot& made)
{
    showMade(made);
    if (!made.rendering.error.isEmpty() && !m_captured.image.isNull()) {
        Q_EMIT message(tr("No image of %1: %2").arg(m_place, made.rendering.error));
    }
}

void SnapshotPane::showMade(const MadeSnapshot& made)
{
    m_recipe = made.recipe;
    m_image = made.rendering.image;
    m_ui->snapshotImageView->setImage(m_image);
    showSummary();
}

void SnapshotPane::imageProfileUpdated(ImageProfile* profile)
{
    if (!m_captured.image.isNull()) {
        processFullFrameImage(profile);
    }
}

void SnapshotPane::chooseImageProfile()
{
    BaseProfile* const chosen =
        chooseProfile(*m_ui->imageProfileComboBox, *ImageProfile::profileManager());
    if (chosen != nullptr) {
        selectImageProfile(*static_cast<ImageProfile*>(chosen));
    }
}

/// The selection also updates the snapshot, because what is shown is what is saved.
void SnapshotPane::selectImageProfile(ImageProfile& profile)
{
    m_imageProfile = &profile;
    Q_EMIT imageProfileChanged();
    imageProfileUpdated(m_imageProfile);
}

void SnapshotPane::chooseOriginalSize()
{
    ProfileManager& manager = *ImageProfile::profileManager();
    manager.setLastUsedProfile(ReadyProfiles::inOriginalSize(*m_imageProfile, manager));
    loadImageProfileComboBox();
    imageProfileUpdated(m_imageProfile);
    Q_EMIT keyboardGivenUp();
}

void SnapshotPane::chooseFileNameProfile()
{
    BaseProfile* const chosen =
        chooseProfile(*m_ui->filenameProfileComboBox, *FileNameProfile::profileManager());
    if (chosen != nullptr) {
        m_fileNameProfile = static_cast<FileNameProfile*>(chosen);
        updateAutomaticFileNameDisplay();
    }
}

/// The suffix of the next saved file, as far as it is known before a name is chosen.
QString SnapshotPane::typeToSave() const
{
    if (m_ui->automaticFileNameGroupBox->isChecked()) {
        return m_fileNameProfile->fileOutputType();
    }
    return m_saveDialog.type();
}

void SnapshotPane::showSummary()
{
    const bool isShown = !m_image.isNull();
    const bool hasOtherSize = m_image.size() != m_captured.image.size();
    // The button is only disabled, so that the picture above keeps its size.
    m_ui->originalSizeButton->setEnabled(isShown && hasOtherSize);
    m_ui->snapshotImageView->setAccessibleDescription(isShown ? m_place : QString());
    m_ui->snapshotSummaryLabel->setText(
        isShown
            ? SnapshotSummary::text(m_image.size(), m_captured.image.size(), typeToSave(), m_recipe)
            : QString());
    m_ui->originalSizeButton->fit();
}

/// The button stands out while something is unsaved.
void SnapshotPane::showWhatIsNext()
{
    const bool isUnsaved = !m_image.isNull() && !m_isKept;
    Theme::setPrimary(*m_ui->saveButton, isUnsaved);
    Q_EMIT unsavedChanged(isUnsaved);
}

void SnapshotPane::copySnapshot()
{
    m_maker->finishRemaking();
    if (!m_image.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_image.copy());
        setKept();
    }
}

void SnapshotPane::copyFullFrame()
{
    if (!m_captured.image.isNull()) {
        ImageProcessingManager::instance()->setToClipboard(m_captured.image.copy());
        setKept();
    }
}

ActionButton& SnapshotPane::saveButton() const
{
    return *m_ui->saveButton;
}
