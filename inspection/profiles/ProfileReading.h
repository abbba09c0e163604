#pragma once

#include <QString>

#include <optional>

/// One name with what each family reads under it.
struct ProfileReading
{
    QString section;
    QString key;
    /// Nothing where the family finds no value.
    std::optional<QString> wide;
    /// The family does not tell a missing value from an empty one.
    QString narrow;

    bool differs() const { return wide.value_or(QString()) != narrow; }
};
