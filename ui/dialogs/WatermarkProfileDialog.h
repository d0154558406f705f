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

/// Edits watermark profiles and shows their effect on an example image.
///
/// The preview is made by the real pipeline from the values in the form, so it shows every effect
/// of size and position. It is updated when the user pauses for a moment. User-interface thread
/// only.
class WatermarkProfileDialog : public QDialog
{
    Q_OBJECT

public:
    explicit WatermarkProfileDialog(QWidget* parent);
    ~WatermarkProfileDialog() override;

    /// Selects the profile and shows it in the form. Null shows the first profile or, if there is
    /// none, default values, which become a profile when they are saved under a name.
    void setSelectedProfile(WatermarkProfile* profile);

    /// The saved profile, or else the one passed to setSelectedProfile(); may be null. Owned by its
    /// manager. Null after it was deleted.
    WatermarkProfile* selectedProfile() const { return m_selectedProfile; }

    /// Sets the preview: `image`, as made by `imageProfile`, with the watermark. By default it is a
    /// sample picture with a default profile; a null image keeps the picture. The profile is not
    /// null, not owned, and must outlive the dialog's run.
    void setExampleImage(const QImage& image, ImageProfile* imageProfile);

    /// Schedules rendering of the preview; each call restarts the delay.
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
