#pragma once

#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "tests/support/Samples.h"
#include "tests/ui/support/TestSettings.h"
#include "ui/batch/BatchModeDialog.h"

#include <QLabel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTableView>

class BatchProcessingDialog;

namespace testsupport {

/// What a field says whose value differs between the chosen jobs.
inline const QString multiple = QStringLiteral("[Multiple]");

/// A video that can be played to its end.
[[nodiscard]] inline QString goodVideo()
{
    return samplePath(QStringLiteral("h264_bframes.mp4"));
}

/// Waits until the batch is over and closes its dialog; fails the case when that takes too long.
void endBatch(BatchProcessingDialog& dialog);

/// A batch mode dialog for one test case, with its own settings, configuration folder and profiles.
/// Create it on the case's stack.
class ModeDialog
{
public:
    ModeDialog();

    BatchModeDialog& dialog() { return m_dialog; }
    const TestDir& dir() const { return m_settings.dir(); }
    QTableView& table() const { return find<QTableView>("filesTableView"); }
    BatchModeListModel& model() const;
    BatchWorkerConfig& job(int row) const { return *model().getConfig(row); }

    /// Lists this many files, a.mov, b.mov and so on, which contain no video. They become selected.
    void load(int count);
    /// Lists these videos.
    void load(const QStringList& files);
    /// Ends the test program if loading takes longer than any test may.
    void waitUntilLoaded();
    QString file(int row) const;

    void select(const QList<int>& rows) const;
    QList<int> selectedRows() const;

    /// Replaces the text of the edit by typing, without leaving it.
    void type(const char* edit, const QString& text) const;
    /// Like type(), and then leaves the edit.
    void enter(const char* edit, const QString& text) const;

    QString text(const char* edit) const;
    QString placeholder(const char* edit) const;
    QString labelText(const char* name) const { return find<QLabel>(name).text(); }
    QString comboText(const char* name) const;
    void choose(const char* comboBox, int index) const;
    bool isChecked(const char* radioButton) const;
    void click(const char* button) const;

    /// The named widgets that are enabled, of all that need a selection.
    QStringList enabledOnes() const;

    /// The content of the file of batch defaults.
    QVariantMap defaults() const;

    /// The object of the form with that name; ends the test program if there is none.
    template <typename Object>
    Object& find(const char* name) const
    {
        auto* const found = m_dialog.findChild<Object*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s in the dialog", name);
        }
        return *found;
    }

private:
    class Profiles
    {
    public:
        explicit Profiles(const TestDir& dir);
    };

    TestSettings m_settings;
    Profiles m_profiles;
    BatchModeDialog m_dialog;
};

} // namespace testsupport
