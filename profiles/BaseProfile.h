#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

class QSettings;

/// A named, persisted set of settings: the base of every kind of profile.
///
/// A concrete kind declares its values as Qt properties and needs no code of its own to persist
/// them: save() and load() walk the properties of the most derived class, so a property added to a
/// kind is a key added to its settings file.
///
/// A profile made through its kind's ProfileManager lives until the program ends; whoever makes one
/// otherwise owns it. User-interface thread only.
class BaseProfile : public QObject
{
    Q_OBJECT
    /// What the user calls the profile. Empty after construction unless the kind names it.
    Q_PROPERTY(QString name READ name WRITE setName)
    /// Who the profile is within its kind: the group it is stored under, and what other profiles
    /// refer to it by, so that renaming breaks no link. Compared ignoring letter case.
    Q_PROPERTY(QString id READ id WRITE setId)

public:
    /// Gives the profile a fresh identity: a random UUID in upper case without braces, 36
    /// characters. The argument is ignored: it is neither copied from nor becomes the parent, for
    /// profiles have none.
    explicit BaseProfile(BaseProfile* ignored = nullptr);
    ~BaseProfile() override;

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    /// The name as people see it, see ProfileNames.
    QString shownName() const;

    QString id() const { return m_id; }
    void setId(const QString& id) { m_id = id; }

    /// Writes every stored, writable property, `objectName` included, into the current group of
    /// `settings`, each under its own name. Other keys of the group stay as they are.
    void save(QSettings& settings) const;

    /// What save() writes, by key.
    [[nodiscard]] QVariantMap values() const;

    /// Sets every stored, writable property of which the current group of `settings` has the key;
    /// the others keep their values. Values are neither validated nor clamped: one of another type
    /// becomes what converting it yields (0 for a word where a number belongs), and one that has no
    /// conversion at all, such as a list for a number, leaves the property as it is.
    virtual void load(const QSettings& settings);

    /// Sets every stored, writable property that the other profile has to its value there, but not
    /// who this profile is: name, id and objectName stay.
    void takeValuesOf(const BaseProfile& other);

private:
    QString m_name;
    QString m_id;
};
