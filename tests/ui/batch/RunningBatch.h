#pragma once

#include "batch/BatchWorkerConfig.h"
#include "ui/batch/BatchProcessingDialog.h"

#include <QProgressBar>
#include <QPushButton>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class BatchThread;

namespace testsupport {

/// The names of all files in the folder, hidden ones included.
[[nodiscard]] QStringList filesIn(const QString& folder);

/// A processing dialog with its jobs. Create it on the case's stack.
class RunningBatch
{
public:
    /// Adds a job of small images; by default a single one from the middle.
    BatchWorkerConfig& addJob(const QString& video, const QString& folder);

    /// Runs the batch, and `during` while the dialog is open. Ends the dialog when that returns, by
    /// cancelling if necessary. Checks in `during` fail the case, but end only `during`.
    void exec(const std::function<void()>& during);
    /// Runs the batch until it ends. Returns false if that takes too long.
    [[nodiscard]] bool execToItsEnd();

    /// Waits until the button shows that everything is done. Returns false if that takes too long.
    [[nodiscard]] bool waitForEnd();
    bool isDone() const;

    BatchProcessingDialog& dialog() { return m_dialog; }
    BatchThread& thread() const;
    QPushButton& button() const;
    QString log() const;
    QStringList logLines() const;
    QString labelText(const char* name) const;
    int percent(const char* name) const;

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
    std::vector<std::unique_ptr<BatchWorkerConfig>> m_configs;
    // Destroyed before the jobs, which its workers use.
    BatchProcessingDialog m_dialog;
};

} // namespace testsupport
