#include "profiles/BaseProfile.h"

#include "profiles/ProfileNames.h"

#include <QColor>
#include <QMetaProperty>
#include <QSettings>
#include <QUuid>
#include <QVariant>

#include <vector>

namespace {

/// The persisted properties of a class in the order of their declaration, inherited ones first.
std::vector<QMetaProperty> persistedProperties(const QMetaObject& type)
{
    std::vector<QMetaProperty> properties;
    for (int index = 0; index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        if (property.isStored() && property.isWritable()) {
            properties.push_back(property);
        }
    }
    return properties;
}

/// Converts a colour to RGB, because a damaged file may name an unknown colour model.
QVariant withKnownColour(const QVariant& value)
{
    if (value.userType() != QMetaType::QColor) {
        return value;
    }
    return static_cast<const QColor*>(value.constData())->toRgb();
}

} // namespace

BaseProfile::BaseProfile(BaseProfile* /*ignored*/)
    : m_id(QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper())
{}

BaseProfile::~BaseProfile() = default;

QString BaseProfile::shownName() const
{
    return ProfileNames::shown(m_name);
}

void BaseProfile::save(QSettings& settings) const
{
    for (const QMetaProperty& property : persistedProperties(*metaObject())) {
        settings.setValue(QLatin1String(property.name()), property.read(this));
    }
}

QVariantMap BaseProfile::values() const
{
    QVariantMap values;
    for (const QMetaProperty& property : persistedProperties(*metaObject())) {
        values.insert(QLatin1String(property.name()), property.read(this));
    }
    return values;
}

void BaseProfile::takeValuesOf(const BaseProfile& other)
{
    const int ownCount = BaseProfile::staticMetaObject.propertyCount();
    for (const QMetaProperty& property : persistedProperties(*metaObject())) {
        const QVariant value = other.property(property.name());
        if (property.propertyIndex() >= ownCount && value.isValid()) {
            property.write(this, value);
        }
    }
}

void BaseProfile::load(const QSettings& settings)
{
    for (const QMetaProperty& property : persistedProperties(*metaObject())) {
        const QLatin1String key(property.name());
        if (!settings.contains(key)) {
            continue;
        }
        // Converted here: write() would drop a value whose conversion fails, and a damaged entry
        // would silently become the default.
        QVariant value = settings.value(key);
        if (value.canConvert(property.userType())) {
            value.convert(property.userType());
        }
        property.write(this, withKnownColour(value));
    }
}
