#include "ctl/Failure.h"

Failure::Failure(ExitStatus status, const QString& message) : m_status(status), m_message(message)
{
}

Failure::Failure(const QString& message) : Failure(ExitStatus::Failed, message) {}

Failure::~Failure() = default;

const char* Failure::what() const noexcept
{
    return "a command of quaysidectl has failed";
}
