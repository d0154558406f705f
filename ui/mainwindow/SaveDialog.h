#pragma once

#include <QDir>
#include <QString>

class QFileDialog;
class QFileInfo;
class QSettings;
class QWidget;

/// Asks for the file that a snapshot is saved as. What was saved last says which folder, name and
/// type are proposed; unless the user saved somewhere else on purpose, the folder is the video's.
///
/// Settings: "lastOpenDir", the folder of the last video, and "lastSaveDir", in place of it where
/// the user saved elsewhere. User-interface thread only.
class SaveDialog
{
public:
    /// The settings outlive the object.
    explicit SaveDialog(QSettings& settings);

    /// Sets the window that the dialog belongs to: once, before ask().
    void makeIn(QWidget& window);

    /// Goes to the folder that the last window saved in, if there is such a folder.
    void restoreFolder();

    /// Proposes the video's name from now on, with the type that was saved last.
    void followName(const QFileInfo& video);
    /// Proposes the video's folder from now on, unless the user saved elsewhere on purpose.
    void followFolder(const QFileInfo& video);

    /// The path that the user chooses, with a suffix; empty when nothing is to be saved. Asks about
    /// a file of that name, too.
    [[nodiscard]] QString ask(const QFileInfo& video);

    /// The snapshot was saved under that path, which was asked for last.
    void noteSaved(const QString& path);

    [[nodiscard]] QString folder() const;

    /// The suffix that the next file will have, as far as is known before its name is chosen.
    [[nodiscard]] QString type() const;

private:
    void prepareDialog();
    void storeFolder();
    [[nodiscard]] bool isReplacingWanted(const QString& path) const;

    QSettings& m_settings;
    QWidget* m_window = nullptr;
    QFileDialog* m_dialog = nullptr; ///< null until it is needed
    QDir m_videoFolder;
    QDir m_folder;
    QString m_fileName;
    QString m_nameFilter;
};
