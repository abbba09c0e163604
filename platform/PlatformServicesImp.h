#pragma once

#include "platform/IPlatformServices.h"

#include <memory>

class PlatformCursorManagerImp;
class PlatformDirectoryManagerImp;
class PlatformFontManagerImp;
class PlatformMessageManagerImp;
class PlatformProfileManagerImp;
class PlatformRegisterManagerImp;
class PlatformResourceManagerImp;
class PlatformUserInputManagerImp;

/// The services object: creates each manager on first request and keeps it until process exit.
/// Not synchronised: GUI thread only.
class PlatformServicesImp : public IPlatformServices
{
public:
    PlatformServicesImp();
    /// Releases the managers in the order of the fields.
    ~PlatformServicesImp() override;

    PlatformServicesImp(const PlatformServicesImp&) = delete;
    PlatformServicesImp& operator=(const PlatformServicesImp&) = delete;

    // A manager whose constructor throws is not kept, and the exception goes on to the caller.
    IPlatformUserInputManager* userInputManager() override;
    void* clipBoardManager() override;
    IPlatformDirectoryManager* directoryManager() override;
    IPlatformCursorManager* cursorManager() override;
    IPlatformFontManager* fontManager() override;
    IPlatformResourceManager* resourceManager() override;
    IPlatformProfileManager* profileManager() override;
    IPlatformMessageManager* messageManager() override;
    IPlatformRegisterManager* registerManager() override;
    void* plotManager() override;
    void* localeManager() override;

private:
    // Deletes a manager whose interface has no virtual destructor.
    struct ExactDelete
    {
        template <typename Manager>
        void operator()(Manager* manager) const;
    };

    std::unique_ptr<PlatformUserInputManagerImp, ExactDelete> m_userInputManager;
    std::unique_ptr<PlatformDirectoryManagerImp, ExactDelete> m_directoryManager;
    std::unique_ptr<PlatformCursorManagerImp> m_cursorManager;
    std::unique_ptr<PlatformFontManagerImp> m_fontManager;
    std::unique_ptr<PlatformResourceManagerImp> m_resourceManager;
    std::unique_ptr<PlatformProfileManagerImp> m_profileManager;
    std::unique_ptr<PlatformMessageManagerImp> m_messageManager;
    std::unique_ptr<PlatformRegisterManagerImp> m_registerManager;
};

/// The one services object of the process; exported from the executable under this name.
[[gnu::visibility("default")]] extern PlatformServicesImp g_PlatformServices;
