#include "batch/BatchModeListModel.h"

#include "batch/BatchWorkerConfig.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <memory>

namespace {

/// Can also create indexes that the model itself does not provide.
class Model : public BatchModeListModel
{
public:
    using BatchModeListModel::BatchModeListModel;
    using BatchModeListModel::createIndex;
};

/// A model of the jobs a, b and c.
struct Jobs
{
    Jobs()
    {
        const std::array<const char*, 3> names{"a", "b", "c"};
        for (std::size_t i = 0; i < names.size(); ++i) {
            configs.at(i).setSource(QStringLiteral("/videos/%1.mov").arg(QLatin1String(names[i])));
            model.addConfig(&configs.at(i));
        }
    }

    QString names() const
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 0).data().toString());
        }
        return names.join(QLatin1Char(' '));
    }

    std::array<BatchWorkerConfig, 3> configs;
    Model model{nullptr};
};

/// Checks every change of the model, and ends the test on a wrong one.
void watch(Model& model)
{
    new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest,
                                 &model);
}

QString text(const QVariant& value)
{
    return value.toString();
}

} // namespace

class BatchModeListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyModel_hasColumnsAndNoRows();
    void headers_nameTheColumns();
    void row_sumsUpItsJob();
    void failedJob_bearsItsMarkAndReasons();
    void data_isThereForDisplayAlone();
    void data_isUnknown_beyondTheLastColumn();
    void addConfig_appendsARow();
    void getConfig_givesTheJobOfARow();
    void removeRow_takesOutTheJob_andLeavesItAlive();
    void removeRow_takesOutNothing_forRowsThatAreNot_data();
    void removeRow_takesOutNothing_forRowsThatAreNot();
    void removeRows_takesOutTheRightJobs_whateverTheOrder_data();
    void removeRows_takesOutTheRightJobs_whateverTheOrder();
    void removeRows_takesOutAJobOnce_forTwoOfItsColumns();
    void configUpdated_hasTheRowShownAnew();
    void rows_haveNoChildren();
};

void BatchModeListModelTest::emptyModel_hasColumnsAndNoRows()
{
    Model model(nullptr);
    watch(model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 5);
    QVERIFY(model.getConfigs().isEmpty());
    QVERIFY(!model.data(QModelIndex()).isValid());
}

void BatchModeListModelTest::headers_nameTheColumns()
{
    const Model model(nullptr);
    QStringList headers;
    for (int section = 0; section < 6; ++section) {
        headers.append(text(model.headerData(section, Qt::Horizontal)));
    }
    QCOMPARE(headers, (QStringList{QStringLiteral("File Name"), QStringLiteral("Destination"),
                                   QStringLiteral("Interval"), QStringLiteral("Output Example"),
                                   QStringLiteral("Images"), QStringLiteral("Unknown!")}));
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(5, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void BatchModeListModelTest::row_sumsUpItsJob()
{
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/videos/clip.final.mov"));
    config.setFileOutputPath(QStringLiteral("/pictures/clips"));
    Model model(nullptr);
    watch(model);
    model.addConfig(&config);
    QCOMPARE(text(model.index(0, 0).data()), QStringLiteral("clip.final"));
    QCOMPARE(text(model.index(0, 1).data()), QStringLiteral("/pictures/clips"));
    QCOMPARE(text(model.index(0, 2).data()), QStringLiteral("Every 5 s"));
    QCOMPARE(text(model.index(0, 3).data()), QStringLiteral("clip.final-00001.jpeg"));
    QCOMPARE(text(model.index(0, 4).data()), QStringLiteral("?"));
    VideoFacts facts;
    facts.duration = 24000;
    facts.loaded = true;
    config.setVideoFacts(facts);
    QCOMPARE(text(model.index(0, 4).data()), QStringLiteral("4"));
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    QCOMPARE(text(model.index(0, 3).data()), QStringLiteral("clip.final-.jpeg"));
    QCOMPARE(text(model.index(0, 4).data()), QStringLiteral("1"));
}

void BatchModeListModelTest::failedJob_bearsItsMarkAndReasons()
{
    Jobs jobs;
    watch(jobs.model);
    const QModelIndex name = jobs.model.index(1, 0);
    jobs.model.setFailure(&jobs.configs[1], QStringLiteral("because"));
    QCOMPARE(jobs.model.failedConfigs(), QList<BatchWorkerConfig*>{&jobs.configs[1]});
    QVERIFY(name.data(Qt::DecorationRole).isValid());
    QCOMPARE(text(name.data(Qt::AccessibleDescriptionRole)), QStringLiteral("Failed"));
    QCOMPARE(text(jobs.model.index(1, 3).data(Qt::ToolTipRole)), QStringLiteral("because"));
    QVERIFY(!jobs.model.index(0, 0).data(Qt::DecorationRole).isValid());
    jobs.model.setFailure(&jobs.configs[1], QString());
    QVERIFY(jobs.model.failedConfigs().isEmpty());
    QVERIFY(!name.data(Qt::DecorationRole).isValid());
}

void BatchModeListModelTest::data_isThereForDisplayAlone()
{
    const Jobs jobs;
    for (int role = 1; role <= Qt::UserRole; ++role) {
        QVERIFY(!jobs.model.index(0, 0).data(role).isValid());
    }
}

void BatchModeListModelTest::data_isUnknown_beyondTheLastColumn()
{
    const Jobs jobs;
    QCOMPARE(text(jobs.model.data(jobs.model.createIndex(0, 5))), QStringLiteral("Unknown!"));
    QCOMPARE(text(jobs.model.data(jobs.model.createIndex(2, 9))), QStringLiteral("Unknown!"));
}

void BatchModeListModelTest::addConfig_appendsARow()
{
    Jobs jobs;
    watch(jobs.model);
    const QSignalSpy inserted(&jobs.model, &Model::rowsInserted);
    BatchWorkerConfig config;
    config.setSource(QStringLiteral("/videos/d.mov"));
    jobs.model.addConfig(&config);
    QCOMPARE(jobs.names(), QStringLiteral("a b c d"));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.at(0), (QVariantList{QModelIndex(), 3, 3}));
}

void BatchModeListModelTest::getConfig_givesTheJobOfARow()
{
    Jobs jobs;
    QCOMPARE(jobs.model.getConfig(1), &jobs.configs[1]);
    QCOMPARE(jobs.model.getConfigs(),
             (QList<BatchWorkerConfig*>{&jobs.configs[0], &jobs.configs[1], &jobs.configs[2]}));
}

void BatchModeListModelTest::removeRow_takesOutTheJob_andLeavesItAlive()
{
    auto config = std::make_unique<BatchWorkerConfig>();
    config->setSource(QStringLiteral("/videos/d.mov"));
    Jobs jobs;
    watch(jobs.model);
    jobs.model.addConfig(config.get());
    jobs.model.removeRow(3, QModelIndex());
    QCOMPARE(jobs.names(), QStringLiteral("a b c"));
    QCOMPARE(config->sourceFileName(), QStringLiteral("d"));
}

void BatchModeListModelTest::removeRow_takesOutNothing_forRowsThatAreNot_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 3;
}

void BatchModeListModelTest::removeRow_takesOutNothing_forRowsThatAreNot()
{
    QFETCH(const int, row);
    Jobs jobs;
    const QSignalSpy before(&jobs.model, &Model::rowsAboutToBeRemoved);
    const QSignalSpy after(&jobs.model, &Model::rowsRemoved);
    jobs.model.removeRow(row, QModelIndex());
    QCOMPARE(jobs.names(), QStringLiteral("a b c"));
    QCOMPARE(before.size(), 1);
    QCOMPARE(after.size(), 1);
    QCOMPARE(after.at(0), (QVariantList{QModelIndex(), row, row}));
}

void BatchModeListModelTest::removeRows_takesOutTheRightJobs_whateverTheOrder_data()
{
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<QString>("left");
    QTest::newRow("none") << QList<int>{} << "a b c";
    QTest::newRow("first and third") << QList<int>{0, 2} << "b";
    QTest::newRow("third and first") << QList<int>{2, 0} << "b";
    QTest::newRow("all") << QList<int>{1, 0, 2} << "";
}

void BatchModeListModelTest::removeRows_takesOutTheRightJobs_whateverTheOrder()
{
    QFETCH(const QList<int>, rows);
    QFETCH(const QString, left);
    Jobs jobs;
    watch(jobs.model);
    QList<QModelIndex> indexes;
    for (const int row : rows) {
        indexes.append(jobs.model.index(row, 0));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Removing index +Q")));
    }
    jobs.model.removeRows(indexes);
    QCOMPARE(jobs.names(), left);
}

/// The second attempt finds no row, which is still notified.
void BatchModeListModelTest::removeRows_takesOutAJobOnce_forTwoOfItsColumns()
{
    Jobs jobs;
    const QSignalSpy removed(&jobs.model, &Model::rowsRemoved);
    jobs.model.removeRows({jobs.model.index(1, 0), jobs.model.index(1, 2)});
    QCOMPARE(jobs.names(), QStringLiteral("a c"));
    QCOMPARE(removed.size(), 2);
    QCOMPARE(removed.at(0), (QVariantList{QModelIndex(), 1, 1}));
    QCOMPARE(removed.at(1), (QVariantList{QModelIndex(), -1, -1}));
}

void BatchModeListModelTest::configUpdated_hasTheRowShownAnew()
{
    Jobs jobs;
    watch(jobs.model);
    const QSignalSpy changed(&jobs.model, &Model::dataChanged);
    jobs.configs[1].setIntervalMilliseconds(250);
    jobs.model.configUpdated(&jobs.configs[1]);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), jobs.model.index(1, 0));
    QCOMPARE(changed.at(0).at(1).toModelIndex(), jobs.model.index(1, 4));
    QVERIFY(changed.at(0).at(2).value<QVector<int>>().isEmpty());
    QCOMPARE(text(jobs.model.index(1, 2).data()), QStringLiteral("Every 0.25 s"));
}

void BatchModeListModelTest::rows_haveNoChildren()
{
    const Jobs jobs;
    QCOMPARE(jobs.model.rowCount(jobs.model.index(0, 0)), 0);
}

QTEST_GUILESS_MAIN(BatchModeListModelTest)
#include "BatchModeListModelTest.moc"
