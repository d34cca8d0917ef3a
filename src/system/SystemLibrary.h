// Libraries of Windows, in whose place no other one of the same name is to be loaded.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// To be called before anything else. From then on Windows looks in its own folder first, before that of the
// program, and never in the current folder. What the program imports was loaded before, but only from Windows
// itself.
inline void PreferSystemLibraries() {
    PROCESS_MITIGATION_IMAGE_LOAD_POLICY policy{};
    policy.PreferSystem32Images = 1;
    // Fails in the first version of Windows 10, which does not know it.
    static_cast<void>(SetProcessMitigationPolicy(ProcessImageLoadPolicy, &policy, sizeof policy));
    // Fails only without memory, and then so will the window.
    static_cast<void>(SetDllDirectoryW(L""));
}

// A function of a library in the Windows system folder, or nullptr if either is missing. Function is a
// pointer type. The library stays loaded, since its windows may still be open.
template <typename Function>
Function SystemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace lindrel
