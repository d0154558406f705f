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

/// Edits how output files are named. Shows, while the user types, the resulting names for an
/// example video: with a counter, and without one as for the single picture of a batch job.
///
/// Zero padding of counters cannot be edited: the saved profile keeps its setting, and the examples
/// show it switched on. User-interface thread only.
class FileNameProfileDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists all file-name profiles and selects none. The examples appear with the first call of
    /// setSelectedProfile() or setExampleFileName().
    explicit FileNameProfileDialog(QWidget* parent);
    ~FileNameProfileDialog() override;

    /// Shows the profile, which is not owned, in the form. Null shows the values of a new profile,
    /// without a name.
    void setSelectedProfile(FileNameProfile* profile);

    /// The saved profile, or else the one that was set; initially null. Null after it was deleted.
    FileNameProfile* selectedProfile() const { return m_selectedProfile; }

    /// The name of the video for the examples; "MyVideo.mpeg" by default. Its base name ends before
    /// the first dot.
    void setExampleFileName(const QString& fileName);

    /// Binds the form and lists the profiles; called during construction.
    void loadProfiles();

    /// Shows the names that result from the current form.
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
