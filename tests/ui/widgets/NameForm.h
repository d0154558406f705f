#pragma once

#include "profiles/FileNameProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/ProfileSelector.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace testsupport {

/// A form over file-name profiles, as a dialog builds it: a text, a choice by data and a check box.
class NameForm
{
public:
    explicit NameForm(const QStringList& names)
        : m_manager(fileName(), m_keeper.factory<FileNameProfile>(), false)
    {
        for (const QString& name : names) {
            addProfile(name);
        }
        for (const char* const type : {"jpg", "png"}) {
            m_type.addItem(QLatin1String(type), QLatin1String(type));
        }
        m_type.setCurrentIndex(-1);
        m_selector.addField(&m_prefixField);
        m_selector.addField(&m_typeField);
        m_selector.addField(&m_padField);
        m_selector.loadProfiles(&m_manager);
    }

    FileNameProfile* addProfile(const QString& name)
    {
        auto* const profile = static_cast<FileNameProfile*>(m_manager.createProfile());
        profile->setName(name);
        profile->setFileOutputPrefix(QStringLiteral("of ") + name);
        profile->setFileOutputType(QStringLiteral("png"));
        m_manager.addProfile(profile);
        return profile;
    }

    FileNameProfile* profile(int index)
    {
        return static_cast<FileNameProfile*>(m_manager.profiles().at(index));
    }

    /// What the file holds, read by a manager of its own.
    QStringList storedPrefixes()
    {
        const ProfileManager stored(fileName(), m_keeper.factory<FileNameProfile>(), false);
        QStringList prefixes;
        const auto profiles = stored.profiles();
        for (const BaseProfile* const profile : profiles) {
            prefixes += static_cast<const FileNameProfile*>(profile)->fileOutputPrefix();
        }
        return prefixes;
    }

    /// Shows the selector alone, with the keyboard in the name. False when that fails.
    [[nodiscard]] bool focusName()
    {
        m_selector.show();
        m_selector.activateWindow();
        combo().setFocus();
        return QTest::qWaitForWindowActive(&m_selector) && combo().lineEdit()->hasFocus();
    }

    void typeName(const QString& name)
    {
        combo().lineEdit()->selectAll();
        QTest::keyClicks(combo().lineEdit(), name);
    }

    static QString fileName() { return QStringLiteral("Profiles.ini"); }

    ProfileSelector& selector() { return m_selector; }
    QComboBox& combo() { return *m_selector.findChild<QComboBox*>(); }
    ProfileManager& manager() { return m_manager; }
    ProfileKeeper& keeper() { return m_keeper; }
    QLineEdit& prefix() { return m_prefix; }
    QComboBox& type() { return m_type; }
    QCheckBox& pad() { return m_pad; }
    Field& prefixField() { return m_prefixField; }
    Field& typeField() { return m_typeField; }
    Field& padField() { return m_padField; }

private:
    TestHome m_home;
    ProfileKeeper m_keeper;
    ProfileManager m_manager;
    QLineEdit m_prefix;
    QComboBox m_type;
    QCheckBox m_pad;
    Field m_prefixField{"fileOutputPrefix", &m_prefix, Field::noChoice, nullptr};
    Field m_typeField{"fileOutputType", &m_type, Field::noChoice, nullptr};
    Field m_padField{"fileOutputCounterPadZeros", &m_pad, Field::noChoice, nullptr};
    ProfileSelector m_selector{nullptr};
};

/// Three names of profiles.
inline QStringList abc()
{
    return {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
}

/// The profile that a signal carried, if it came once.
inline BaseProfile* onlyProfile(const QSignalSpy& spy)
{
    return spy.count() == 1 ? spy.at(0).at(0).value<BaseProfile*>() : nullptr;
}

/// The texts that a signal carried.
inline QStringList names(const QSignalSpy& spy)
{
    QStringList found;
    for (const QList<QVariant>& call : spy) {
        found += call.at(0).toString();
    }
    return found;
}

inline QStringList itemTexts(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts += box.itemText(i);
    }
    return texts;
}

} // namespace testsupport
