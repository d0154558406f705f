// Actions for whole profiles: renaming, duplicating, deleting, and confirming an overwrite.

#include "ui/widgets/ProfileSelector.h"

#include "profiles/ProfileManager.h"
#include "ui/widgets/PlainText.h"
#include "ui_ProfileSelector.h"

#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QSignalBlocker>

#include <algorithm>

void ProfileSelector::setupMenu()
{
    auto* const menu = new QMenu(this);
    const auto add = [this, menu](const QString& text, const char* name,
                                  void (ProfileSelector::*act)()) {
        QAction* const action = menu->addAction(text, this, act);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    QAction* const rename =
        add(tr("Rename\u2026"), "renameProfileAction", &ProfileSelector::renameProfile);
    QAction* const duplicate =
        add(tr("Duplicate"), "duplicateProfileAction", &ProfileSelector::duplicateProfile);
    QAction* const remove =
        add(tr("Delete\u2026"), "deleteProfileAction", &ProfileSelector::deleteProfile);
    connect(menu, &QMenu::aboutToShow, this, [this, rename, duplicate, remove] {
        const bool hasProfile = selectedProfile() != nullptr;
        rename->setEnabled(hasProfile);
        duplicate->setEnabled(hasProfile);
        // One profile must always remain.
        remove->setEnabled(hasProfile && m_profiles.size() > 1);
    });
    m_ui->profileMenuButton->setMenu(menu);
}

BaseProfile* ProfileSelector::selectedProfile() const
{
    return m_profiles.value(m_ui->profileComboBox->currentIndex());
}

bool ProfileSelector::maySave()
{
    const BaseProfile* const target = currentListedProfile();
    if (target == nullptr || target == selectedProfile()) {
        return true;
    }
    return QMessageBox::question(
               this, tr("Replace Profile"),
               asPlainText(
                   tr("A profile \u201c%1\u201d exists already. Replace its settings with these?")
                       .arg(target->shownName())),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool ProfileSelector::isNameTaken(const QString& name, const BaseProfile* exceptFor) const
{
    return std::any_of(m_profiles.cbegin(), m_profiles.cend(), [&](const BaseProfile* profile) {
        return profile != exceptFor && profile->shownName().compare(name, Qt::CaseInsensitive) == 0;
    });
}

void ProfileSelector::renameProfile()
{
    BaseProfile* const profile = selectedProfile();
    if (profile == nullptr) {
        return;
    }
    bool isAccepted = false;
    const QString name = QInputDialog::getText(this, tr("Rename Profile"), tr("New name:"),
                                               QLineEdit::Normal, profile->shownName(), &isAccepted)
                             .trimmed();
    if (!isAccepted || name.isEmpty() || name == profile->shownName()) {
        return;
    }
    if (isNameTaken(name, profile)) {
        QMessageBox::warning(this, tr("Rename Profile"),
                             asPlainText(tr("A profile \u201c%1\u201d exists already.").arg(name)));
        return;
    }
    profile->setName(name);
    m_ui->profileComboBox->setItemText(m_ui->profileComboBox->currentIndex(), name);
    m_ui->profileComboBox->setEditText(name);
    m_profileManager->saveProfiles();
}

/// The copy gets the values entered in the form, so that none are lost.
void ProfileSelector::duplicateProfile()
{
    const BaseProfile* const profile = selectedProfile();
    if (profile == nullptr) {
        return;
    }
    BaseProfile* const copy = m_profileManager->createProfile();
    copy->takeValuesOf(*profile);
    loadFormIntoProfile(copy);
    QString name = tr("%1 copy").arg(profile->shownName());
    for (int number = 2; isNameTaken(name, nullptr); ++number) {
        name = tr("%1 copy %2").arg(profile->shownName(), QString::number(number));
    }
    copy->setName(name);
    m_profileManager->addProfile(copy);
    m_profileManager->saveProfiles();
    addProfile(copy);
    m_ui->profileComboBox->setCurrentIndex(m_ui->profileComboBox->count() - 1);
}

void ProfileSelector::deleteProfile()
{
    BaseProfile* const profile = selectedProfile();
    if (profile == nullptr || m_profiles.size() < 2 ||
        QMessageBox::question(
            this, tr("Delete Profile"),
            asPlainText(tr("Delete the profile \u201c%1\u201d?").arg(profile->shownName())),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    if (!m_profileManager->removeProfile(profile)) {
        return;
    }
    const int index = m_profiles.indexOf(profile);
    m_profiles.removeAt(index);
    {
        // Blocked until both lists match again.
        const QSignalBlocker noSelection(*m_ui->profileComboBox);
        m_ui->profileComboBox->removeItem(index);
        m_ui->profileComboBox->setCurrentIndex(-1);
    }
    Q_EMIT profileDeleted(profile);
    m_ui->profileComboBox->setCurrentIndex(std::min(index, int(m_profiles.size()) - 1));
}
