#pragma once

#include "ctl/ExitStatus.h"

#include <QString>

#include <exception>

/// Ends a command before its end, with nothing saved: what a command has changed in the store by
/// then is dropped.
class Failure : public std::exception
{
public:
    /// The message is one line for people, translated.
    Failure(ExitStatus status, const QString& message);
    /// With the status Failed.
    explicit Failure(const QString& message);
    ~Failure() override;

    ExitStatus status() const { return m_status; }
    const QString& message() const { return m_message; }
    const char* what() const noexcept override;

private:
    ExitStatus m_status;
    QString m_message;
};
