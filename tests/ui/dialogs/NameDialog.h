#pragma once

#include "profiles/FileNameProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"
#include "ui/dialogs/FileNameProfileDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace testsupport {

/// A dialog and ways to reach what is in it.
class NameDialog
{
public:
    FileNameProfileDialog* operator->() { return &m_dialog; }
    FileNameProfileDialog& dialog() { return m_dialog; }

    /// The object of the form with that name; ends the test program if there is none.
    template <typename Object>
    Object& find(const char* name)
    {
        auto* const found = m_dialog.findChild<Object*>(QLatin1String(name));
        if (!found) {
            qFatal("no %s in the dialog", name);
        }
        return *found;
    }

    QComboBox& profiles() { return find<QComboBox>("profileComboBox"); }
    QLineEdit& prefix() { return find<QLineEdit>("formatPrefixLineEdit"); }
    QLineEdit& baseName() { return find<QLineEdit>("formatBasenameLineEdit"); }
    QLineEdit& suffix() { return find<QLineEdit>("formatSuffixLineEdit"); }
    QComboBox& type() { return find<QComboBox>("formatFileExtensionComboBox"); }
    QPushButton& save() { return find<QPushButton>("saveButton"); }
    QPushButton& cancel() { return find<QPushButton>("cancelButton"); }
    QPushButton& reset() { return find<QPushButton>("resetToDefaultsButton"); }

    QString exampleVideo() { return find<QLabel>("outputExampleVideoLabel").text(); }
    QString example() { return find<QLabel>("outputExampleLabel").text(); }
    QString singleShot() { return find<QLabel>("outputExampleWithoutCounterLabel").text(); }

    void typeName(const QString& name)
    {
        profiles().lineEdit()->selectAll();
        QTest::keyClicks(profiles().lineEdit(), name);
    }

    /// Shows the dialog as the active window. False when that fails.
    [[nodiscard]] bool show()
    {
        m_dialog.show();
        m_dialog.activateWindow();
        return QTest::qWaitForWindowActive(&m_dialog);
    }

private:
    FileNameProfileDialog m_dialog{nullptr};
};

/// The name of the file that the profiles are kept in.
inline QString nameProfilesFile()
{
    return QStringLiteral("FileNameProfiles.ini");
}

inline ProfileManager& manager()
{
    return *FileNameProfile::profileManager();
}

inline FileNameProfile* addProfile(const QString& name, const QString& prefix = QString())
{
    auto* const profile = static_cast<FileNameProfile*>(manager().createProfile());
    profile->setName(name);
    profile->setFileOutputPrefix(prefix);
    manager().addProfile(profile);
    return profile;
}

} // namespace testsupport
