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
/// A profile created by its kind's ProfileManager lives until the program ends; otherwise its
/// creator owns it. User-interface thread only.
class BaseProfile : public QObject
{
    Q_OBJECT
    /// The name that the user gave the profile. Empty after construction unless the kind sets it.
    Q_PROPERTY(QString name READ name WRITE setName)
    /// Identifies the profile within its kind: the group that it is stored under, and the key by
    /// which other profiles refer to it, so that renaming breaks no link. Compared
    /// case-insensitively.
    Q_PROPERTY(QString id READ id WRITE setId)

public:
    /// Gives the profile a new id: a random UUID in upper case without braces, 36 characters. The
    /// argument is ignored: it is neither copied nor becomes the parent, since profiles have no
    /// parent.
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

    /// Sets every stored, writable property whose key exists in the current group of `settings`;
    /// the others keep their values. Values are neither validated nor clamped. A value of another
    /// type is converted (a word becomes 0 where a number is expected). A value that cannot be
    /// converted at all, such as a list to a number, leaves the property unchanged.
    virtual void load(const QSettings& settings);

    /// Copies every stored, writable property of the other profile except its identity: name, id
    /// and objectName stay.
    void takeValuesOf(const BaseProfile& other);

private:
    QString m_name;
    QString m_id;
};
