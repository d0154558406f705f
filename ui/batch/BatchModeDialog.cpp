#include "ui/batch/BatchModeDialog.h"

#include "batch/BatchModeListModel.h"
#include "batch/BatchWorkerConfig.h"
#include "batch/SecondsText.h"
#include "batch/VideoInfoLoader.h"
#include "profiles/ProfileManager.h"
#include "ui/batch/MergedField.h"
#include "ui/batch/SecondsField.h"
#include "ui/widgets/DialogSize.h"
#include "ui/widgets/EqualWidths.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/GroupBoxMargins.h"
#include "ui/widgets/NoFocusItemDelegate.h"
#include "ui_BatchModeDialog.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QStandardItemModel>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

namespace {

/// Minimum size for the names of videos and folders, in average letters and lines.
constexpr QSize openLetters{150, 42};

/// The data of the first item of each combo box, which means no choice.
QString noChoice()
{
    return QStringLiteral("-");
}

QList<QObject*> asObjects(const QList<BatchWorkerConfig*>& configs)
{
    QList<QObject*> objects;
    objects.reserve(configs.size());
    std::copy(configs.cbegin(), configs.cend(), std::back_inserter(objects));
    return objects;
}

} // namespace

BatchModeDialog::BatchModeDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::BatchModeDialog>())
    , m_model(new BatchModeListModel(this))
    , m_loader(new VideoInfoLoader(this))
{
    m_ui->setupUi(this);
    GroupBoxMargins::apply(*this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    arrangeButtons();
    alignCaptions();
    setupFilesTable();
    setupLoading();
    loadProfileComboBox(m_ui->imageProfileComboBox, ImageProfile::profileManager());
    loadProfileComboBox(m_ui->filenameProfileComboBox, FileNameProfile::profileManager());
    loadSingleShotComboBox();
    setupPropertyFields();
    loadFormValues();
    wrapButtonsOnNarrowScreens();
    DialogSize::open(*this, openLetters);
}

BatchModeDialog::~BatchModeDialog()
{
    // Its signals would fill the form once more.
    m_loader->disconnect(this);
    endList();
}

void BatchModeDialog::arrangeButtons()
{
    // The button box knows the platform's order.
    m_ui->buttonBox->addButton(m_ui->startButton, QDialogButtonBox::AcceptRole);
    m_ui->buttonBox->addButton(m_ui->cancelButton, QDialogButtonBox::RejectRole);
}

/// Aligns the captions of all groups, which are stacked and read as one form.
void BatchModeDialog::alignCaptions()
{
    EqualWidths::apply({m_ui->imageProfileEditButton, m_ui->filenameProfileEditButton});
    EqualWidths::apply({m_ui->intervalImagesRadioButton, m_ui->intervalMillisecondsRadioButton,
                        m_ui->skipFrontLabel, m_ui->skipBackLabel});
}

void BatchModeDialog::wrapButtonsOnNarrowScreens()
{
    DialogSize::polish(*this);
    if (minimumSizeHint().width() > screen()->availableSize().width()) {
        m_ui->filesButtonsLayout->removeWidget(m_ui->selectAllVideoButton);
        m_ui->filesLayout->addWidget(m_ui->selectAllVideoButton, 0, Qt::AlignLeft);
    }
}

void BatchModeDialog::setupFilesTable()
{
    QTableView& table = *m_ui->filesTableView;
    table.setModel(m_model);
    table.setItemDelegate(new NoFocusItemDelegate(&table));
    const int letter = fontMetrics().averageCharWidth();
    int column = 0;
    for (const int letters : {22, 30, 14, 28, 9}) {
        table.setColumnWidth(column++, letters * letter);
    }
    // The number of images comes first; the folder may need scrolling.
    table.horizontalHeader()->moveSection(BatchModeListModel::Images, 1);
    table.horizontalHeader()->moveSection(BatchModeListModel::Interval + 1, 2);
    const int rowHeight = fontMetrics().height() + 8;
    table.verticalHeader()->setDefaultSectionSize(rowHeight);
    table.setMinimumHeight(4 * rowHeight);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &BatchModeDialog::loadFormValues);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &BatchModeDialog::showImageSum);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &BatchModeDialog::showImageSum);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &BatchModeDialog::showImageSum);
    for (const int key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        auto* const shortcut = new QShortcut(key, &table);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, m_ui->removeVideoButton, &QPushButton::click);
    }

    m_emptyListHint = new QLabel(table.viewport());
    m_emptyListHint->setAlignment(Qt::AlignCenter);
    m_emptyListHint->setWordWrap(true);
    m_emptyListHint->setTextFormat(Qt::RichText);
    m_emptyListHint->setText(
        QStringLiteral("<p><b>%1</b></p><p>%2</p>")
            .arg(tr("No Videos Yet").toHtmlEscaped(),
                 tr("Load videos, or drop them here. Then choose which images to take of each.")
                     .toHtmlEscaped()));
    auto* const layout = new QVBoxLayout(table.viewport());
    layout->addWidget(m_emptyListHint);
}

void BatchModeDialog::setupPropertyFields()
{
#if QT_VERSION_MAJOR >= 6
    connect(m_ui->filenameProfileComboBox, &QComboBox::textActivated, this,
            &BatchModeDialog::on_filenameProfileComboBox_activated);
#endif
    addField("source", m_ui->selectedVideoFileNameLabel, Field::noChoice);
    addField("imageProfileId", m_ui->imageProfileComboBox, Field::noChoice);
    addField("fileOutputPath", m_ui->fileOutputFolderTextEdit, Field::noChoice);
    addField("filenameProfileId", m_ui->filenameProfileComboBox, Field::noChoice);
    addField("filenameExample", m_ui->filenameOutputExampleLabel, Field::noChoice);
    addField("intervalType", m_ui->intervalMillisecondsRadioButton,
             BatchWorkerConfig::EveryMilliseconds);
    addField("intervalType", m_ui->intervalImagesRadioButton, BatchWorkerConfig::SpreadImages);
    addField("intervalType", m_ui->intervalSingleShotRadioButton, BatchWorkerConfig::SingleShot);
    addSecondsField("intervalMilliseconds", m_ui->intervalMillisecondsTextEdit);
    addField("intervalImages", m_ui->intervalImagesTextEdit, Field::noChoice);
    addField("intervalSingleShot", m_ui->intervalSingleShotComboBox, Field::noChoice);
    addField("exactFrames", m_ui->exactFramesCheckBox, Field::noChoice);
    addSecondsField("skipFront", m_ui->skipFrontTextEdit);
    addSecondsField("skipBack", m_ui->skipBackTextEdit);

    for (Field* const field : qAsConst(m_fields)) {
        field->whenChanged(field->widget(), [this, field] {
            if (!m_isLoading) {
                fieldUpdated(field);
            }
        });
    }
    for (const QRadioButton* const radioButton :
         {m_ui->intervalMillisecondsRadioButton, m_ui->intervalImagesRadioButton,
          m_ui->intervalSingleShotRadioButton}) {
        connect(radioButton, &QRadioButton::clicked, this, &BatchModeDialog::loadFormValues);
    }
}

void BatchModeDialog::addField(char const* property, QWidget* widget, int value)
{
    m_fields.append(new Field(property, widget, value, this));
}

void BatchModeDialog::addSecondsField(char const* property, QLineEdit* edit)
{
    m_fields.append(new SecondsField(property, edit, this));
}

void BatchModeDialog::loadProfileComboBox(QComboBox* comboBox, ProfileManager* manager)
{
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    comboBox->clear();
    comboBox->addItem(noChoice(), noChoice());
    const QList<BaseProfile*> profiles = manager->profiles();
    for (const BaseProfile* const profile : profiles) {
        comboBox->addItem(profile->shownName(), profile->id());
    }
    setupComboBox(comboBox);
}

void BatchModeDialog::loadSingleShotComboBox()
{
    QComboBox& comboBox = *m_ui->intervalSingleShotComboBox;
    comboBox.clear();
    comboBox.addItem(noChoice(), noChoice());
    comboBox.addItem(tr("front"), BatchWorkerConfig::Front);
    comboBox.addItem(tr("middle"), BatchWorkerConfig::Middle);
    comboBox.addItem(tr("back"), BatchWorkerConfig::Back);
    setupComboBox(&comboBox);
}

/// The first item means no choice, or several; users cannot select it.
void BatchModeDialog::setupComboBox(QComboBox* comboBox)
{
    if (auto* const items = qobject_cast<QStandardItemModel*>(comboBox->model())) {
        items->item(0)->setSelectable(false);
        items->item(0)->setEnabled(false);
    }
}

QList<BatchWorkerConfig*> BatchModeDialog::getSelectedConfigs() const
{
    QList<BatchWorkerConfig*> configs;
    const QModelIndexList rows = m_ui->filesTableView->selectionModel()->selectedRows(0);
    for (const QModelIndex& row : rows) {
        configs.append(m_model->getConfig(row.row()));
    }
    return configs;
}

void BatchModeDialog::loadFormValues()
{
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    const QList<QObject*> configs = asObjects(getSelectedConfigs());
    for (Field* const field : qAsConst(m_fields)) {
        MergedField::show(*field, MergedField::merge(configs, field->propertyName()));
    }
    updateFieldsEnabled();
}

void BatchModeDialog::updateFieldsEnabled()
{
    const QScopedValueRollback<bool> loading(m_isLoading, true);
    const bool hasRows = m_model->rowCount() > 0;
    const bool hasSelection = m_ui->filesTableView->selectionModel()->hasSelection();
    m_emptyListHint->setVisible(!hasRows && !isLoading());
    m_ui->filesTableView->horizontalHeader()->setVisible(hasRows);
    m_ui->startButton->setEnabled(hasRows && !isLoading());
    m_ui->startButton->setToolTip(
        isLoading() ? tr("The batch can start when all videos have been read") : QString());
    m_ui->selectAllVideoButton->setEnabled(hasRows);
    m_ui->retryFailedButton->setVisible(!m_model->failedConfigs().isEmpty());
    m_ui->retryFailedButton->setEnabled(!isLoading());
    m_ui->useForNewVideosButton->setEnabled(hasSelection);
    if (!hasSelection) {
        m_ui->selectedVideoFileNameLabel->setText(tr("[No Video Selected]"));
    }
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             m_ui->removeVideoButton, m_ui->selectedVideoGroupBox, m_ui->imageProfileGroupBox,
             m_ui->intervalGroupBox, m_ui->skipGroupBox, m_ui->fileOutputGroupBox}) {
        widget->setEnabled(hasSelection);
    }
    for (const Field* const field : qAsConst(m_fields)) {
        setWidgetEnabled(field->widget(), hasSelection);
    }
}

void BatchModeDialog::setWidgetEnabled(QWidget* widget, bool enabled)
{
    widget->setEnabled(enabled);
    if (!enabled) {
        MergedField::reset(*widget);
    }
}

void BatchModeDialog::fieldUpdated(Field* field)
{
    if (auto* const edit = qobject_cast<QLineEdit*>(field->widget())) {
        edit->setPlaceholderText(QString());
        if (!isSensible(*edit)) {
            return;
        }
    }
    const QVariant value = field->value();
    if (field->isChoice() && value == Field::noChoice) {
        return;
    }
    const QList<BatchWorkerConfig*> configs = getSelectedConfigs();
    for (BatchWorkerConfig* const config : configs) {
        config->setProperty(field->propertyName(), value);
        m_model->configUpdated(config);
    }
}

/// Whether the typed value is valid: an absolute path for the folder, a sufficiently large number
/// for a number.
bool BatchModeDialog::isSensible(const QLineEdit& edit) const
{
    if (&edit == m_ui->fileOutputFolderTextEdit) {
        return QDir::isAbsolutePath(edit.text());
    }
    if (&edit == m_ui->intervalImagesTextEdit) {
        bool isNumber = false;
        const int number = edit.text().toInt(&isNumber);
        return isNumber && number >= 1;
    }
    const bool mayBeZero = &edit == m_ui->skipFrontTextEdit || &edit == m_ui->skipBackTextEdit;
    const std::optional<qint64> time = millisecondsOf(edit.text());
    return time && *time >= (mayBeZero ? 0 : 1) && *time <= std::numeric_limits<int>::max();
}

/// Typing a value selects its kind of interval.
void BatchModeDialog::useInterval(QRadioButton& radioButton, QLineEdit& edit, const QString& text)
{
    if (m_isLoading || text.isEmpty() || radioButton.isChecked()) {
        return;
    }
    const int cursor = edit.cursorPosition();
    resetIntervalWidgets();
    radioButton.click();
    // The click has refilled the form. Unlike setText(), this can be undone.
    edit.selectAll();
    edit.insert(text);
    edit.setCursorPosition(cursor);
}

void BatchModeDialog::resetIntervalWidgets()
{
    m_ui->intervalMillisecondsRadioButton->setEnabled(true);
    m_ui->intervalImagesRadioButton->setEnabled(true);
    m_ui->intervalMillisecondsTextEdit->setPlaceholderText(QString());
    m_ui->intervalImagesTextEdit->setPlaceholderText(QString());
}

void BatchModeDialog::on_intervalMillisecondsTextEdit_textChanged(QString const& arg1)
{
    useInterval(*m_ui->intervalMillisecondsRadioButton, *m_ui->intervalMillisecondsTextEdit, arg1);
}

void BatchModeDialog::on_intervalImagesTextEdit_textChanged(QString const& arg1)
{
    useInterval(*m_ui->intervalImagesRadioButton, *m_ui->intervalImagesTextEdit, arg1);
}

/// Whether the text was not typed here, such as the placeholder for several values.
bool BatchModeDialog::isUntouched(const QLineEdit& edit) const
{
    const bool hasOnlyPlaceholder = edit.text().isEmpty() && !edit.placeholderText().isEmpty();
    return m_isLoading || hasOnlyPlaceholder || !edit.isEnabled();
}

void BatchModeDialog::takeBackUnlessSensible(QLineEdit& edit)
{
    if (isUntouched(edit)) {
        return;
    }
    while (!isSensible(edit) && edit.isUndoAvailable()) {
        edit.undo();
    }
    if (!isSensible(edit)) {
        loadFormValues();
    }
}

void BatchModeDialog::on_intervalMillisecondsTextEdit_editingFinished()
{
    takeBackUnlessSensible(*m_ui->intervalMillisecondsTextEdit);
}

void BatchModeDialog::on_intervalImagesTextEdit_editingFinished()
{
    takeBackUnlessSensible(*m_ui->intervalImagesTextEdit);
}

void BatchModeDialog::on_skipFrontTextEdit_editingFinished()
{
    takeBackUnlessSensible(*m_ui->skipFrontTextEdit);
}

void BatchModeDialog::on_skipBackTextEdit_editingFinished()
{
    takeBackUnlessSensible(*m_ui->skipBackTextEdit);
}

/// An emptied field restores the folder of each video: only now, because more could be typed until
/// here.
void BatchModeDialog::on_fileOutputFolderTextEdit_editingFinished()
{
    QLineEdit& edit = *m_ui->fileOutputFolderTextEdit;
    if (!edit.text().isEmpty() || isUntouched(edit)) {
        takeBackUnlessSensible(edit);
        return;
    }
    const QList<BatchWorkerConfig*> configs = getSelectedConfigs();
    for (BatchWorkerConfig* const config : configs) {
        config->setFileOutputPath({});
        m_model->configUpdated(config);
    }
    loadFormValues();
}

void BatchModeDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && qobject_cast<QLineEdit*>(focusWidget()) != nullptr) {
        // Return ends the typing and must not start the batch as well.
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}
