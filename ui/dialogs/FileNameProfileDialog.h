#pragma once

#include <QDialog>
#include <QString>

#include <memory>

class BaseProfile;
class Field;
class FileNameProfile;

namespace Ui {
class FileNameProfileDialog;
}

/// Edits how output files are named, and shows, while the user types, which names come out for an
/// example video: with a counter, and without one as for the single picture of a batch job.
///
/// Whether counters are padded with zeros is not offered: it stays as it is in the profile saved,
/// and the examples show it on. User-interface thread only.
class FileNameProfileDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists all file-name profiles and selects none; the examples are shown from the first of
    /// setSelectedProfile() and setExampleFileName() on.
    explicit FileNameProfileDialog(QWidget* parent);
    ~FileNameProfileDialog() override;

    /// Shows the profile, which is not owned, in the form. With null the form shows the values of a
    /// new profile, without a name.
    void setSelectedProfile(FileNameProfile* profile);

    /// The profile that was saved, or else the one set; null at first. Null once that was deleted.
    FileNameProfile* selectedProfile() const { return m_selectedProfile; }

    /// The name of the video that the examples are for, "MyVideo.mpeg" unless set. Its base name is
    /// what goes before the first dot.
    void setExampleFileName(const QString& fileName);

    /// Binds the form and lists the profiles; a step of the construction.
    void loadProfiles();

    /// Shows which names the form as it is now gives.
    void updateExampleDisplay();

private Q_SLOTS:
    void profileSelected(BaseProfile* profile);
    void profileNameTextChanged(const QString& name);
    void fieldChanged(Field* field);
    void on_resetToDefaultsButton_clicked();
    void on_cancelButton_clicked();
    void on_saveButton_clicked();

private:
    void fillTypes();
    void arrangeButtons();
    void alignCaptions();

    std::unique_ptr<Ui::FileNameProfileDialog> m_ui;
    FileNameProfile* m_selectedProfile = nullptr;
    QString m_exampleFileName = QStringLiteral("MyVideo.mpeg");
};
