#pragma once

#include "platform/PlatformRegisterManagerImp.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/MadeRecording.h"
#include "trace/replay/ReplayProcess.h"

#include <csignal>
#include <memory>
#include <unistd.h>

namespace replay {

enum class Fault
{
    OtherAnswer,
    Overrun,
    Crash
};

/// A register manager that answers one thing otherwise: the value N3, after it was set.
class BrokenRegisterManager : public PlatformRegisterManagerImp
{
public:
    explicit BrokenRegisterManager(Fault fault) : m_fault(fault) {}

    unsigned int RegQueryValueExW(HKEY key, const wchar_t* valueName, unsigned int* reserved,
                                  unsigned int* type, unsigned char* data,
                                  unsigned int* byteCount) override
    {
        const unsigned int status = PlatformRegisterManagerImp::RegQueryValueExW(
            key, valueName, reserved, type, data, byteCount);
        if (status != ERROR_SUCCESS || !data || QString::fromWCharArray(valueName) != "N3")
            return status;
        if (m_fault == Fault::Crash)
            kill(getpid(), SIGKILL);
        data[m_fault == Fault::Overrun ? 4 : 0] = 0xFF;
        return status;
    }

private:
    Fault m_fault;
};

class BrokenServices : public PlatformServicesImp
{
public:
    explicit BrokenServices(Fault fault) : m_register(fault) {}

    IPlatformRegisterManager* registerManager() override { return &m_register; }

    static ReplayProcess::MakeServices make(Fault fault)
    {
        return [fault] { return std::make_unique<BrokenServices>(fault); };
    }

    /// A call that sets a DWORD to 7, directly under a root.
    static MadeRecording::Call set(const QByteArray& key, const QByteArray& name)
    {
        return {"register", "RegSetValueExW",
                "{\"key\":{\"handle\":\"" + key + "\"},\"valueName\":{\"text\":\"" + name +
                    "\"},\"reserved\":0,\"type\":4,\"data\":{\"data\":\"07000000\",\"length\":4},"
                    "\"byteCount\":4}"};
    }

private:
    BrokenRegisterManager m_register;
};

} // namespace replay
