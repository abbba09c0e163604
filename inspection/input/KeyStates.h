#pragma once

#include "platform/input/VirtualKeys.h"

#include <QCoreApplication>
#include <QString>

/// What the key-state service answers, and what that means in the language of the interface.
class KeyStates
{
    Q_DECLARE_TR_FUNCTIONS(KeyStates)

public:
    /// Keys that programs ask for though the service does not know them.
    static const std::array<VirtualKey, 25> unknownKeys;

    static bool isDown(int virtualKey);

    /// "down" or "up".
    static QString name(bool isDown);

    /// The number that is answered for a code with its meaning, which for a code that the service
    /// does not know is "always up".
    static QString answer(int virtualKey);
};
