#include "platform/PlatformServicesImp.h"

#include "app/ServicesObject.h"
#include "platform/PlatformCursorManagerImp.h"
#include "platform/PlatformDirectoryManagerImp.h"
#include "platform/PlatformFontManagerImp.h"
#include "platform/PlatformMessageManagerImp.h"
#include "platform/PlatformProfileManagerImp.h"
#include "platform/PlatformRegisterManagerImp.h"
#include "platform/PlatformResourceManagerImp.h"
#include "platform/PlatformUserInputManagerImp.h"

#include <QtGlobal>

// First of all static objects: anything that hands the services over may run before main.
[[gnu::init_priority(201)]] PlatformServicesImp g_PlatformServices;

IPlatformServices* servicesObject()
{
    return &g_PlatformServices;
}

namespace {

template <typename Manager, typename Delete>
Manager* created(std::unique_ptr<Manager, Delete>& manager)
{
    if (!manager)
        manager.reset(new Manager);
    return manager.get();
}

} // namespace

template <typename Manager>
void PlatformServicesImp::ExactDelete::operator()(Manager* manager) const
{
    // The compiler fears for derived classes, but the manager was created here, as what it is.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_GCC("-Wdelete-non-virtual-dtor")
    QT_WARNING_DISABLE_CLANG("-Wdelete-non-virtual-dtor")
    delete manager;
    QT_WARNING_POP
}

PlatformServicesImp::PlatformServicesImp() = default;

PlatformServicesImp::~PlatformServicesImp()
{
    // In field order; left to themselves, members are destroyed in the reverse of it.
    m_userInputManager.reset();
    m_directoryManager.reset();
    m_cursorManager.reset();
    m_fontManager.reset();
    m_resourceManager.reset();
    m_profileManager.reset();
    m_messageManager.reset();
    m_registerManager.reset();
}

IPlatformUserInputManager* PlatformServicesImp::userInputManager()
{
    return created(m_userInputManager);
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
    return created(m_cursorManager);
}

IPlatformFontManager* PlatformServicesImp::fontManager()
{
    return created(m_fontManager);
}

IPlatformResourceManager* PlatformServicesImp::resourceManager()
{
    return created(m_resourceManager);
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
