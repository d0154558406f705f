#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>

/// A file dialog that restores its state (view, columns, history) and its folder from the last
/// accepted run, also across runs of the application.
///
/// The dialog's name is the key, so that dialogs for different purposes do not share a folder. The
/// values are stored in the application's default QSettings under the name followed by
/// "_dialogState" and "_dialogPath". User-interface thread only.
class SmartFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// Restores the values stored under `name`. Without them, the dialog starts like the platform's
    /// file dialogs and writes a debug message.
    SmartFileDialog(QWidget* parent, QString name);

    /// Case-insensitive patterns for the names of files that are offered as videos.
    [[nodiscard]] static QStringList videoPatterns();

    /// Offers video files first, then all files.
    void setFiltersToVideo();

    /// Offers image files first, then all files.
    void setFiltersToImage();

    /// Stores the state and the current folder. An accepted dialog does this itself.
    void saveSettings();

public Q_SLOTS:
    /// Stores the state of an accepted dialog, not of a cancelled one, and brings the parent back
    /// to the front, which closing a native dialog does not always do.
    ///
    /// @param result  a QDialog::DialogCode
    void dialogFinished(int result);

private:
    void restoreSettings();
    QString stateKey() const;
    QString pathKey() const;

    QString m_name;
};
