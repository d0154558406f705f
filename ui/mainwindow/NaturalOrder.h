#pragma once

#include <QCollator>
#include <QString>

/// Compares names as people sort them: case-insensitively, and numbers in them by value, so that
/// "take 9" comes before "take 10". Different names never compare equal.
///
/// One thread at a time may use an object.
class NaturalOrder
{
public:
    NaturalOrder();

    /// Whether `a` comes before `b`.
    [[nodiscard]] bool operator()(const QString& a, const QString& b) const;

private:
    [[nodiscard]] int compare(const QString& a, const QString& b) const;

    QCollator m_letters;
};
