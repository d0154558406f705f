#include "ui/widgets/ProfileSelector.h"

#include "profiles/ProfileManager.h"
#include "ui_ProfileSelector.h"

#include <QDebug>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

ProfileSelector::ProfileSelector(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ProfileSelector>())
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->profileComboBox);
    // The combo box's minimum size assumes small letters.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    QLineEdit* const nameEdit = m_ui->profileComboBox->lineEdit();
    nameEdit->setPlaceholderText(tr("[Type to Name Profile]"));
    // It has the focus, and to screen readers it is a field of its own.
    nameEdit->setAccessibleName(m_ui->profileComboBox->accessibleName());
    // Otherwise the combo box would complete a new name to an existing one, and load the profile of
    // a typed name into the form before that could be saved under the name.
    m_ui->profileComboBox->setCompleter(nullptr);
    disconnect(nameEdit, &QLineEdit::editingFinished, m_ui->profileComboBox, nullptr);
    setupMenu();
}

ProfileSelector::~ProfileSelector() = default;

void ProfileSelector::addField(Field* field)
{
    m_fields.append(field);
    field->whenChanged(this, [this, field] {
        if (!m_loading) {
            Q_EMIT fieldChanged(field);
        }
    });
}

void ProfileSelector::loadProfiles(ProfileManager* manager)
{
    m_profileManager = manager;
    const QList<BaseProfile*> profiles = manager->profiles();
    for (BaseProfile* const profile : profiles) {
        addProfile(profile);
    }
}

void ProfileSelector::addProfile(BaseProfile* profile)
{
    m_profiles.append(profile);

    QComboBox& box = *m_ui->profileComboBox;
    if (box.count() > 0) {
        box.addItem(profile->shownName());
        return;
    }
    // A combo box selects its first item by itself.
    const QSignalBlocker noSelection(box);
    const QString typed = box.currentText();
    box.addItem(profile->shownName());
    box.setCurrentIndex(-1);
    box.setEditText(typed);
}

void ProfileSelector::loadProfile(BaseProfile* profile)
{
    m_ui->profileComboBox->setCurrentIndex(m_profiles.indexOf(profile));
    loadProfileIntoForm(profile);
}

BaseProfile* ProfileSelector::currentListedProfile() const
{
    const QString name = m_ui->profileComboBox->currentText();
    if (name.isEmpty()) {
        return nullptr;
    }
    // Fixed strings match case-insensitively.
    const int index = m_ui->profileComboBox->findText(name, Qt::MatchFixedString);
    return index >= 0 ? m_profiles.at(index) : nullptr;
}

void ProfileSelector::loadProfileIntoForm(const BaseProfile* profile)
{
    if (!profile) {
        return;
    }
    const QScopedValueRollback<bool> loading(m_loading, true);
    for (Field* const field : qAsConst(m_fields)) {
        field->setValue(profile->property(field->propertyName()));
    }
}

void ProfileSelector::loadFormIntoProfile(BaseProfile* profile) const
{
    for (const Field* const field : m_fields) {
        const QVariant value = field->value();
        if (!field->isChoice() || value != Field::noChoice) {
            profile->setProperty(field->propertyName(), value);
        }
    }
}

bool ProfileSelector::isProfileSameAsForm(const BaseProfile* profile) const
{
    return std::all_of(m_fields.begin(), m_fields.end(), [profile](const Field* field) {
        const QVariant value = field->value();
        if (field->isChoice() && value == Field::noChoice) {
            return true;
        }
        return value == profile->property(field->propertyName());
    });
}

QVariant ProfileSelector::getValueForField(const Field* field) const
{
    return field->value();
}

void ProfileSelector::loadDefaultValues()
{
    if (!m_profileManager) {
        return;
    }
    BaseProfile* const fresh = m_profileManager->createProfile();
    fresh->setParent(this);
    loadProfileIntoForm(fresh);
}

BaseProfile* ProfileSelector::saveProfile()
{
    if (!m_profileManager) {
        return nullptr;
    }
    BaseProfile* profile = currentListedProfile();
    if (!profile) {
        profile = addTypedProfile();
    }
    loadFormIntoProfile(profile);
    m_profileManager->saveProfiles();
    return profile;
}

BaseProfile* ProfileSelector::addTypedProfile()
{
    BaseProfile* const profile = m_profileManager->createProfile();
    profile->setName(m_ui->profileComboBox->currentText());
    // Selecting the profile shows its values in the form, so it must have the user's by then.
    loadFormIntoProfile(profile);
    m_profileManager->addProfile(profile);
    addProfile(profile);
    m_ui->profileComboBox->setCurrentIndex(m_ui->profileComboBox->count() - 1);
    return profile;
}

void ProfileSelector::on_profileComboBox_editTextChanged(const QString& text)
{
    if (!m_loading) {
        Q_EMIT profileNameTextChanged(text);
    }
}

void ProfileSelector::on_profileComboBox_currentIndexChanged(int index)
{
    if (m_loading) {
        return;
    }
    if (m_ui->profileComboBox->currentText().isEmpty()) {
        qDebug() << "Name.length was 0. Show an error or don't let the user press the button here.";
        return;
    }
    if (index < 0) {
        return;
    }

    BaseProfile* const profile = m_profiles.at(index);
    const int position = m_profiles.indexOf(profile);
    if (position != index) {
        // It is listed twice: use its first place, whose selection calls this function again.
        m_ui->profileComboBox->setCurrentIndex(position);
        return;
    }
    loadProfileIntoForm(profile);
    Q_EMIT profileSelected(profile);
}
