#pragma once

#include <QByteArray>
#include <QString>

/// One statement of a registry file.
struct RegFileEntry
{
    enum class Action
    {
        CreateKey,   ///< [key]
        DeleteKey,   ///< [-key]
        SetValue,    ///< "name"=data
        DeleteValue, ///< "name"=-
        Malformed    ///< see `problem`
    };

    Action action = Action::Malformed;
    /// The line on which it begins, from 1.
    int line = 0;
    /// The full path with the name of its root, levels separated by backslashes.
    QString key;
    /// Empty for the default value.
    QString name;
    /// Windows type number; meaningful for SetValue, like the two that follow.
    unsigned int type = 0;
    /// REG_SZ only.
    QString text;
    /// Every other type: the bytes, numbers in little-endian order.
    QByteArray data;
    /// Malformed only: what is wrong, in words, translated.
    QString problem;
};
