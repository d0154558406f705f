#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QString>
#include <QVariant>

class BatchWorkerConfig;

/// Batch jobs as a read-only table: one row per job, and columns that summarise it. Jobs that
/// failed have a mark, and a tool tip with the reasons.
///
/// Jobs are not owned and must live as long as they are listed. User-interface thread only.
class BatchModeListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        FileName = 0,
        Destination = 1,
        Interval = 2,
        OutputExample = 3,
        Images = 4,
        ColumnCount = 5
    };

    explicit BatchModeListModel(QObject* parent = nullptr);

    /// Appends a job.
    void addConfig(BatchWorkerConfig* config);

    /// The job of a valid row.
    BatchWorkerConfig* getConfig(int row) const { return m_configs.at(row); }
    /// All jobs, in the order of the rows.
    QList<BatchWorkerConfig*> getConfigs() const { return m_configs; }

    /// Removes one row. An invalid row removes nothing but still notifies views.
    void removeRow(int row, const QModelIndex& parent);

    /// Removes the jobs of all these indexes, in any order. A job with several indexes is searched
    /// for again for each, which notifies views as in removeRow().
    void removeRows(const QList<QModelIndex>& indexes);
    using QAbstractTableModel::removeRows;

    /// Marks the job as failed for these reasons, as a text for tool tips; an empty one removes the
    /// mark.
    void setFailure(BatchWorkerConfig* config, const QString& reasons);
    /// The jobs marked as failed, in the order of the rows.
    QList<BatchWorkerConfig*> failedConfigs() const;

    /// Updates the job's row after its settings have changed.
    void configUpdated(BatchWorkerConfig* config);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVariant textIn(int column, const BatchWorkerConfig& config) const;

    QList<BatchWorkerConfig*> m_configs;
    QHash<const BatchWorkerConfig*, QString> m_failures;
};
