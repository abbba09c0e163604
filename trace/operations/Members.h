#pragma once

#include "platform/IPlatformServices.h"

#include <cstddef>

/// The operations as members of the interfaces, in the order of the rows, without the destructors.
/// They supply the types of the arguments; everything else about an operation is in its row.
namespace trace {

template <auto... Operations>
struct Members
{
    static constexpr std::size_t count = sizeof...(Operations);
};

using ServicesMembers =
    Members<&IPlatformServices::userInputManager, &IPlatformServices::clipBoardManager,
            &IPlatformServices::directoryManager, &IPlatformServices::cursorManager,
            &IPlatformServices::fontManager, &IPlatformServices::resourceManager,
            &IPlatformServices::profileManager, &IPlatformServices::messageManager,
            &IPlatformServices::registerManager, &IPlatformServices::plotManager,
            &IPlatformServices::localeManager>;

using UserInputMembers =
    Members<&IPlatformUserInputManager::getAsyncKeyState, &IPlatformUserInputManager::getKeyState,
            &IPlatformUserInputManager::setKeyPressed, &IPlatformUserInputManager::FindWindowW>;

using DirectoryMembers = Members<
    &IPlatformDirectoryManager::findFirstFile, &IPlatformDirectoryManager::findNextFile,
    &IPlatformDirectoryManager::findClose, &IPlatformDirectoryManager::isFileExist,
    &IPlatformDirectoryManager::isURL, &IPlatformDirectoryManager::AddBackslash,
    &IPlatformDirectoryManager::SHGetFolderPath, &IPlatformDirectoryManager::PathRelativePathToW,
    &IPlatformDirectoryManager::GetTempPathW, &IPlatformDirectoryManager::GetFileAttributesW,
    &IPlatformDirectoryManager::SetFileAttributesW, &IPlatformDirectoryManager::IsPathRelative,
    &IPlatformDirectoryManager::PathFindExtensionW>;

using CursorMembers =
    Members<&IPlatformCursorManager::GetCursorPos, &IPlatformCursorManager::LoadCursorW,
            &IPlatformCursorManager::ScreenToClient, &IPlatformCursorManager::GetCursor,
            &IPlatformCursorManager::SetCursor>;

using FontMembers =
    Members<&IPlatformFontManager::enumFontFamiliesEx, &IPlatformFontManager::addLogFont,
            &IPlatformFontManager::getGlobalNameByLocalName,
            &IPlatformFontManager::IsValidCodePage>;

using ResourceMembers =
    Members<&IPlatformResourceManager::loadString, &IPlatformResourceManager::loadImage,
            &IPlatformResourceManager::createImage, &IPlatformResourceManager::createBrush,
            &IPlatformResourceManager::fromHandle, &IPlatformResourceManager::deleteObject,
            &IPlatformResourceManager::GetSystemMetrics, &IPlatformResourceManager::GetBitmap,
            &IPlatformResourceManager::GetBitmapBits, &IPlatformResourceManager::GetCursorBits,
            &IPlatformResourceManager::EnumPrintersW, &IPlatformResourceManager::MonitorFromPoint,
            &IPlatformResourceManager::GetMonitorInfoW>;

using ProfileMembers = Members<&IPlatformProfileManager::GetPrivateProfileStringW,
                               &IPlatformProfileManager::GetPrivateProfileStringA,
                               &IPlatformProfileManager::GetPrivateProfileIntW,
                               &IPlatformProfileManager::GetPrivateProfileIntA,
                               &IPlatformProfileManager::GetPrivateProfileSectionNamesW,
                               &IPlatformProfileManager::GetPrivateProfileSectionW,
                               &IPlatformProfileManager::WritePrivateProfileStringW,
                               &IPlatformProfileManager::WritePrivateProfileStringA,
                               &IPlatformProfileManager::OpenPrivateProfile,
                               &IPlatformProfileManager::QueryPrivateProfileString,
                               &IPlatformProfileManager::ClosePrivateProfile,
                               &IPlatformProfileManager::SetOutQSettings>;

using MessageMembers =
    Members<&IPlatformMessageManager::messageBox, &IPlatformMessageManager::postMessage,
            &IPlatformMessageManager::sendMessage, &IPlatformMessageManager::TaskDialogIndirect>;

using RegisterMembers =
    Members<&IPlatformRegisterManager::RegQueryValueExW, &IPlatformRegisterManager::RegCreateKeyExW,
            &IPlatformRegisterManager::RegOpenKeyExW, &IPlatformRegisterManager::RegOpenKeyW,
            &IPlatformRegisterManager::RegSetValueExW, &IPlatformRegisterManager::RegCloseKey,
            &IPlatformRegisterManager::RegQueryInfoKeyW, &IPlatformRegisterManager::RegEnumKeyW,
            &IPlatformRegisterManager::RegDeleteKeyW, &IPlatformRegisterManager::RegDeleteValueW,
            &IPlatformRegisterManager::RegEnumKeyExW, &IPlatformRegisterManager::RegEnumValueW,
            &IPlatformRegisterManager::RegQueryValueW, &IPlatformRegisterManager::RegDeleteKeyExW,
            &IPlatformRegisterManager::RegCreateKeyW>;

} // namespace trace
