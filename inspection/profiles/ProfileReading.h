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
    /// False while the families have not been asked: then both readings mean nothing.
    bool isRead = true;

    bool differs() const { return isRead && wide.value_or(QString()) != narrow; }
};
