#include "batch/BatchModeListModel.h"

#include "batch/BatchWorkerConfig.h"

#include <QDebug>
#include <QDir>
#include <QIcon>
#include <QLocale>

#include <vector>

namespace {

QString unknown()
{
    return QStringLiteral("Unknown!");
}

} // namespace

BatchModeListModel::BatchModeListModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void BatchModeListModel::addConfig(BatchWorkerConfig* config)
{
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    m_configs.append(config);
    endInsertRows();
}

void BatchModeListModel::removeRow(int row, const QModelIndex& parent)
{
    beginRemoveRows(parent, row, row);
    if (row >= 0 && row < rowCount()) {
        m_configs.removeAt(row);
    }
    endRemoveRows();
}

/// Identifies rows by their jobs, because each removal moves the rows below.
void BatchModeListModel::removeRows(const QList<QModelIndex>& indexes)
{
    std::vector<BatchWorkerConfig*> configs;
    for (const QModelIndex& index : indexes) {
        qDebug() << "Removing index " << index;
        configs.push_back(getConfig(index.row()));
    }
    for (BatchWorkerConfig* const config : configs) {
        removeRow(m_configs.indexOf(config), QModelIndex());
    }
}

void BatchModeListModel::setFailure(BatchWorkerConfig* config, const QString& reasons)
{
    if (reasons.isEmpty()) {
        m_failures.remove(config);
    } else {
        m_failures.insert(config, reasons);
    }
    if (m_configs.contains(config)) {
        configUpdated(config);
    }
}

QList<BatchWorkerConfig*> BatchModeListModel::failedConfigs() const
{
    QList<BatchWorkerConfig*> failed;
    for (BatchWorkerConfig* const config : m_configs) {
        if (m_failures.contains(config)) {
            failed += config;
        }
    }
    return failed;
}

void BatchModeListModel::configUpdated(BatchWorkerConfig* config)
{
    const int row = m_configs.indexOf(config);
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int BatchModeListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_configs.size();
}

int BatchModeListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant BatchModeListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const BatchWorkerConfig* const config = getConfig(index.row());
    const bool isMarked = index.column() == FileName && m_failures.contains(config);
    switch (role) {
    case Qt::DisplayRole:
        return textIn(index.column(), *config);
    case Qt::DecorationRole:
        return isMarked ? QVariant(QIcon(QStringLiteral(":/Images/Failed.svg"))) : QVariant();
    case Qt::AccessibleDescriptionRole:
        return isMarked ? QVariant(tr("Failed")) : QVariant();
    case Qt::ToolTipRole:
        return m_failures.contains(config) ? QVariant(m_failures.value(config)) : QVariant();
    default:
        return {};
    }
}

QVariant BatchModeListModel::textIn(int column, const BatchWorkerConfig& config) const
{
    switch (column) {
    case FileName:
        return config.sourceFileName();
    case Destination:
        return config.fileOutputPath();
    case Interval:
        return config.intervalDisplay();
    case OutputExample:
        return config.filenameExample();
    case Images: {
        const std::optional<int> images = config.expectedImages();
        return images ? QLocale().toString(*images) : QStringLiteral("?");
    }
    default:
        return unknown();
    }
}

QVariant BatchModeListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return {};
    }
    switch (section) {
    case FileName:
        return tr("File Name");
    case Destination:
        return tr("Destination");
    case Interval:
        return tr("Interval");
    case OutputExample:
        return tr("Output Example");
    case Images:
        return tr("Images");
    default:
        return unknown();
    }
}
