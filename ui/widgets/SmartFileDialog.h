#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>

/// A file dialog that opens as its user left it: it remembers its state (view, columns, history)
/// and its folder from one accepted run to the next, also between runs of the application.
///
/// What is remembered goes by the dialog's name, so that dialogs for different purposes do not
/// share a folder. It is kept in the application's default QSettings under the name followed by
/// "_dialogState" and "_dialogPath". User-interface thread only.
class SmartFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// Restores what was remembered under `name`. Where nothing was, the dialog starts as the
    /// platform's file dialogs do, and says so on the debug stream.
    SmartFileDialog(QWidget* parent, QString name);

    /// The names of files that are offered as videos, as patterns in any case.
    [[nodiscard]] static QStringList videoPatterns();

    /// Offers video files first, then all files.
    void setFiltersToVideo();

    /// Offers image files first, then all files.
    void setFiltersToImage();

    /// Remembers the state and the current folder. An accepted dialog does this by itself.
    void saveSettings();

public Q_SLOTS:
    /// Remembers an accepted dialog, never a cancelled one, and brings the parent back to the
    /// front: closing the platform's own dialogs leaves that to chance.
    ///
    /// @param result  a QDialog::DialogCode
    void dialogFinished(int result);

private:
    void restoreSettings();
    QString stateKey() const;
    QString pathKey() const;

    QString m_name;
};
