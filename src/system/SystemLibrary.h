// Libraries of Windows that are loaded only when they are needed.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// A function of a library in the Windows system folder, or nullptr if either is missing. Function is a
// pointer type. The library stays loaded, since its windows may still be open.
template <typename Function>
Function SystemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace lindrel
