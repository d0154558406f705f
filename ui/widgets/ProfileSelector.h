#pragma once

// Whole types, so that the signals' arguments are known to the meta-object system.
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

/// The strip on top of every profile dialog: a combo box with the profiles of one kind, to pick one
/// or to type the name of a new one; a menu that renames, duplicates and deletes; and the values
/// between the dialog's form and the profiles.
///
/// The dialog adds a Field for each property, connects the signals, calls loadProfiles() and then
/// loadProfile() with the one to begin with. A typed name neither adds nor chooses a profile before
/// saveProfile(), so what has been entered in the form is never lost over it.
///
/// Profiles belong to their manager and fields to the dialog; both outlive every call made here.
/// User-interface thread only.
class ProfileSelector : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileSelector(QWidget* parent = nullptr);
    ~ProfileSelector() override;

    /// Binds a widget of the form, which is filled and read in the order of adding, and reports its
    /// changes through fieldChanged() from now on. What the widget holds stays as it is.
    void addField(Field* field);

    /// Lists the profiles of the manager after those listed already, and remembers the manager for
    /// loadDefaultValues() and saveProfile(). Selects none.
    void loadProfiles(ProfileManager* manager);

    /// Lists one more profile, under the name that it has now. Neither the selection nor what is
    /// typed changes.
    void addProfile(BaseProfile* profile);

    /// Selects the profile, or nothing if it is not listed, and shows it in the form. Emits
    /// profileSelected() if the selection changes to it. Null selects nothing and leaves the form.
    void loadProfile(BaseProfile* profile);

    /// The first listed profile whose name is the text in the combo box, ignoring letter case; null
    /// if there is none, and while the text is empty.
    BaseProfile* currentListedProfile() const;

    /// Shows the values of the profile in the form, without any signal. A property that it lacks
    /// shows as an empty text, 0, unchecked or no item. Null leaves the form as it is.
    void loadProfileIntoForm(const BaseProfile* profile);

    /// Writes what the form holds into the profile; of radio buttons that share a property only the
    /// checked one. A property that the profile lacks is added to it, but never persisted.
    void loadFormIntoProfile(BaseProfile* profile) const;

    /// Whether loadFormIntoProfile() would change nothing.
    bool isProfileSameAsForm(const BaseProfile* profile) const;

    /// Field::value().
    QVariant getValueForField(const Field* field) const;

    /// Shows the values of a new profile in the form, without any signal. No listed profile
    /// changes. Does nothing before loadProfiles().
    void loadDefaultValues();

    /// The profile of the list that was chosen last, whatever has been typed since; null for none.
    BaseProfile* selectedProfile() const;

    /// Whether saveProfile() may be called: asks the user where that would change another profile
    /// than the selected one, whose name was typed.
    [[nodiscard]] bool maySave();

    /// Saves the form in the current listed profile, or, if there is none, in a new one, which gets
    /// the text in the combo box for its name and is listed and selected (profileSelected()).
    /// Writes the file of the kind. Gives the profile, which the manager owns; null, with nothing
    /// saved, before loadProfiles().
    BaseProfile* saveProfile();

Q_SIGNALS:
    /// The form shows another profile of the list, never null.
    void profileSelected(BaseProfile* profile);

    /// The text in the combo box changed, by typing or by selecting.
    void profileNameTextChanged(const QString& name);

    /// The user deleted the profile, which lives on for those that hold it but is in no list any
    /// more. Another one becomes selected next.
    void profileDeleted(BaseProfile* profile);

    /// What a bound widget holds changed other than by loading a profile. Colour and font labels do
    /// not report.
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
