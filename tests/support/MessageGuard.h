#pragma once

#include <QString>

/// Installs a message handler that fails the running test on every warning or worse from Qt.
void installMessageGuard();

/// While it lives, messages that contain `text` are expected; fails the test if none came.
class ExpectMessage
{
public:
    explicit ExpectMessage(const QString& text);
    ~ExpectMessage();

    ExpectMessage(const ExpectMessage&) = delete;
    ExpectMessage& operator=(const ExpectMessage&) = delete;
};
