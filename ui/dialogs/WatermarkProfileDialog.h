#pragma once

#include "profiles/ImageProfile.h"

#include <QDialog>
#include <QImage>
#include <QTimer>

#include <memory>

class BaseProfile;
class Field;
class PreviewMaker;
class WatermarkProfile;

namespace Ui {
class WatermarkProfileDialog;
}

/// Edits watermark profiles, and shows on an example image what they make of it.
///
/// The preview is what the real pipeline gives for the values in the form, so that it shows every
/// effect of size and position. It follows once the user pauses for a moment. User-interface thread
/// only.
class WatermarkProfileDialog : public QDialog
{
    Q_OBJECT

public:
    explicit WatermarkProfileDialog(QWidget* parent);
    ~WatermarkProfileDialog() override;

    /// Selects the profile and shows it in the form. Null shows the first profile there is, or, if
    /// there is none, default values that become a profile when they are saved under a name.
    void setSelectedProfile(WatermarkProfile* profile);

    /// The profile that was saved, else the one given to setSelectedProfile(); may be null. Its
    /// manager owns it. Null once that was deleted.
    WatermarkProfile* selectedProfile() const { return m_selectedProfile; }

    /// What the preview shows: `image`, as `imageProfile` makes it, with the watermark. Without
    /// this call it is a sample picture and a default profile; a null image leaves the picture as
    /// it is. The profile is not null, not owned, and outlives the dialog's run.
    void setExampleImage(const QImage& image, ImageProfile* imageProfile);

    /// Renders the preview anew in a moment; every call puts it off again.
    void updateWatermark();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void profileNameTextChanged(const QString& name);
    void fieldChanged(Field* field);
    void profileSelected(BaseProfile* profile);
    void updateType();
    void updateWatermarkTimerFired();
    void on_watermarkTypeTextRadioButton_clicked(bool checked);
    void on_watermarkTypeImageRadioButton_clicked(bool checked);
    void on_imageBrowseButton_clicked();
    void on_imageFileNameLineEdit_textChanged(const QString& name);
    void on_textFontButton_clicked();
    void on_textColorButton_clicked();
    void on_shadowColorButton_clicked();
    void on_saveButton_clicked();
    void on_cancelButton_clicked();

private:
    void setupButtons();
    void setupEffects();
    void setupProfileSelector();
    void setupAlignmentComboBox();
    void addField(const char* propertyName, QWidget* widget);
    void addChoice(const char* propertyName, QWidget* widget, int choiceValue);
    void showType();
    void askForMissingPicture();

    std::unique_ptr<Ui::WatermarkProfileDialog> m_ui;
    WatermarkProfile* m_selectedProfile = nullptr;
    QImage m_exampleImage;
    PreviewMaker* const m_preview;
    ImageProfile m_defaultImageProfile;
    ImageProfile* m_imageProfile = &m_defaultImageProfile;
    QTimer m_previewTimer;
};
