#pragma once

class IPlatformServices;
class QSettings;

/// A module's handle; the same type as in the Windows types of the services.
using HINSTANCE = void*;

/// The type of the function that a module exports under the unmangled name "loadstring": it returns
/// the NUL-terminated text of this number, which remains the module's, or null where there is none.
using LoadStringFunction = const wchar_t* (*)(unsigned int id);

/// What the closed host libraries supply. Everything here is declared, never defined, by Quayside's
/// own libraries: the executable links it from the maker's libraries or from the stand-in.
#pragma GCC visibility push(default)

/// Hands the services object over. Called once, at start-up; from then on the library may call any
/// operation of it on the GUI thread.
void setPlatformServices(IPlatformServices* services);

/// The settings store that serves as the registry. Owned and configured by the library; null until
/// it has been set up.
extern QSettings* g_globalSettings;

/// Told of every copy of a wide string, with the address of the new string.
void updateCStringManagerData(const void* string);

/// Copies the NUL-terminated `source` into `destination` of `size` bytes, terminator included.
/// Returns 0, or an error number when it does not fit or an argument is invalid.
int strcpy_s(char* destination, int size, const char* source);

/// The address of the function `name` in `module`, or null where it has none; null for a null
/// module or name.
void* GetProcAddress(HINSTANCE module, const char* name);

// The configuration library is optional, and so is each of its functions: the application refers to
// them weakly, and does without what nothing defines. It loads no such library by itself: they are
// found in what it was linked with, and in what those libraries need.

/// Sets the configuration up for `language` (empty: none asked for). Returns 0 for success.
int InitOrbxConfig(const wchar_t* language);

/// Creates the configuration's registry entries. Called only after a successful set-up.
void CreateConfigReg();

/// The configured language as a Windows language identifier (2052: Simplified Chinese).
int GetCurrentOrbxLanguageId();

#pragma GCC visibility pop
