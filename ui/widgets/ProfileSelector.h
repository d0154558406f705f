#pragma once

// Included so that the signals' argument types are known to the meta-object system.
#include "profiles/BaseProfile.h"
#include "ui/widgets/Field.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

class ProfileManager;

namespace Ui {
class ProfileSelector;
}

/// The strip on top of every profile dialog: a combo box to choose a profile or to type the name of
/// a new one, a menu that renames, duplicates and deletes, and the transfer of values between the
/// dialog's form and the profiles.
///
/// The dialog adds a Field for each property, connects the signals, calls loadProfiles() and then
/// loadProfile() with the initial one. A typed name neither adds nor selects a profile before
/// saveProfile(), so the values entered in the form are never lost.
///
/// Profiles belong to their manager and fields to the dialog; both must outlive every call made
/// here. User-interface thread only.
class ProfileSelector : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileSelector(QWidget* parent = nullptr);
    ~ProfileSelector() override;

    /// Binds a widget of the form. Fields are filled and read in the order in which they are added,
    /// and changes are reported by fieldChanged() from now on. The widget's content stays
    /// unchanged.
    void addField(Field* field);

    /// Appends the profiles of the manager to the list, and stores the manager for
    /// loadDefaultValues() and saveProfile(). Selects none.
    void loadProfiles(ProfileManager* manager);

    /// Appends a profile under its current name. Neither the selection nor the typed text changes.
    void addProfile(BaseProfile* profile);

    /// Selects the profile, or nothing if it is not listed, and shows it in the form. Emits
    /// profileSelected() if the selection changes to it. Null selects nothing and leaves the form
    /// unchanged.
    void loadProfile(BaseProfile* profile);

    /// The first listed profile whose name is the text in the combo box, ignoring letter case; null
    /// if there is none, and while the text is empty.
    BaseProfile* currentListedProfile() const;

    /// Shows the values of the profile in the form, without emitting signals. A missing property
    /// shows as an empty text, 0, unchecked or no item. Null leaves the form unchanged.
    void loadProfileIntoForm(const BaseProfile* profile);

    /// Writes the form's content to the profile; of radio buttons that share a property only the
    /// checked one. A property that the profile lacks is added to it, but never persisted.
    void loadFormIntoProfile(BaseProfile* profile) const;

    /// True if loadFormIntoProfile() would change nothing.
    bool isProfileSameAsForm(const BaseProfile* profile) const;

    /// The same as Field::value().
    QVariant getValueForField(const Field* field) const;

    /// Shows the values of a new profile in the form, without emitting signals. No listed profile
    /// changes. Does nothing before loadProfiles().
    void loadDefaultValues();

    /// The listed profile that was chosen last, whatever was typed since; null for none.
    BaseProfile* selectedProfile() const;

    /// Whether saveProfile() may be called: asks the user if the typed name belongs to a profile
    /// other than the selected one, which would change.
    [[nodiscard]] bool maySave();

    /// Saves the form in the current listed profile or, if there is none, in a new one, which gets
    /// the text in the combo box as its name and is listed and selected (profileSelected()). Writes
    /// the file of the kind. Returns the profile, which the manager owns; null, with nothing saved,
    /// before loadProfiles().
    BaseProfile* saveProfile();

Q_SIGNALS:
    /// The form shows another profile of the list, never null.
    void profileSelected(BaseProfile* profile);

    /// The text in the combo box changed, by typing or by selecting.
    void profileNameTextChanged(const QString& name);

    /// The user deleted the profile, which stays valid but is not in any list. Another one becomes
    /// selected next.
    void profileDeleted(BaseProfile* profile);

    /// The content of a bound widget changed other than by loading a profile. Colour and font
    /// labels are not reported.
    void fieldChanged(Field* field);

private Q_SLOTS:
    void on_profileComboBox_editTextChanged(const QString& text);
    void on_profileComboBox_currentIndexChanged(int index);

private:
    void setupMenu();
    void renameProfile();
    void duplicateProfile();
    void deleteProfile();
    bool isNameTaken(const QString& name, const BaseProfile* exceptFor) const;
    BaseProfile* addTypedProfile();

    std::unique_ptr<Ui::ProfileSelector> m_ui;
    ProfileManager* m_profileManager = nullptr;
    /// Item i of the combo box is profile i.
    QList<BaseProfile*> m_profiles;
    QList<Field*> m_fields;
    bool m_loading = false;
};
