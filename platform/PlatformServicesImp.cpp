#include "platform/PlatformServicesImp.h"

#include "platform/PlatformDirectoryManagerImp.h"
#include "platform/PlatformFontManagerImp.h"
#include "platform/PlatformMessageManagerImp.h"
#include "platform/PlatformProfileManagerImp.h"
#include "platform/PlatformRegisterManagerImp.h"

// First of all static objects: anything that hands the services over may run before main.
[[gnu::init_priority(201)]] PlatformServicesImp g_PlatformServices;

namespace {

template <typename Manager>
Manager* created(std::unique_ptr<Manager>& manager)
{
    if (!manager)
        manager = std::make_unique<Manager>();
    return manager.get();
}

} // namespace

PlatformServicesImp::PlatformServicesImp() = default;

PlatformServicesImp::~PlatformServicesImp()
{
    // In field order; left to themselves, members are destroyed in the reverse of it.
    m_directoryManager.reset();
    m_fontManager.reset();
    m_profileManager.reset();
    m_messageManager.reset();
    m_registerManager.reset();
}

IPlatformUserInputManager* PlatformServicesImp::userInputManager()
{
    return nullptr;
}

void* PlatformServicesImp::clipBoardManager()
{
    return nullptr;
}

IPlatformDirectoryManager* PlatformServicesImp::directoryManager()
{
    return created(m_directoryManager);
}

IPlatformCursorManager* PlatformServicesImp::cursorManager()
{
    return nullptr;
}

IPlatformFontManager* PlatformServicesImp::fontManager()
{
    return created(m_fontManager);
}

IPlatformResourceManager* PlatformServicesImp::resourceManager()
{
    return nullptr;
}

IPlatformProfileManager* PlatformServicesImp::profileManager()
{
    return created(m_profileManager);
}

IPlatformMessageManager* PlatformServicesImp::messageManager()
{
    return created(m_messageManager);
}

IPlatformRegisterManager* PlatformServicesImp::registerManager()
{
    return created(m_registerManager);
}

void* PlatformServicesImp::plotManager()
{
    return nullptr;
}

void* PlatformServicesImp::localeManager()
{
    return nullptr;
}
