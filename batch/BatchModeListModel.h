#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QString>
#include <QVariant>

class BatchWorkerConfig;

/// Batch jobs as a table: a row for each, and columns that sum it up. Nothing is edited in it. Jobs
/// that failed bear a mark, and their tool tip tells why.
///
/// The jobs belong to someone else and must live as long as they are listed. User-interface thread
/// only.
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

    /// Lists one more job, as the last one.
    void addConfig(BatchWorkerConfig* config);

    /// The job of a row that there is.
    BatchWorkerConfig* getConfig(int row) const { return m_configs.at(row); }
    /// All jobs, in the order of the rows.
    QList<BatchWorkerConfig*> getConfigs() const { return m_configs; }

    /// Takes one row out. For a row that there is not, nothing is taken out, but the views are told
    /// of a removal all the same.
    void removeRow(int row, const QModelIndex& parent);

    /// Takes out the jobs of all these indexes, whatever their order. A job with several indexes is
    /// looked for once more with each, which the views notice as in removeRow().
    void removeRows(const QList<QModelIndex>& indexes);
    using QAbstractTableModel::removeRows;

    /// Marks the job as one that failed, for these reasons; an empty text takes the mark away.
    void setFailure(BatchWorkerConfig* config, const QString& reasons);
    /// The jobs marked so, in the order of the rows.
    QList<BatchWorkerConfig*> failedConfigs() const;

    /// Has the job's row shown anew after its settings have changed.
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
