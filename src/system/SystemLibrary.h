// The system's libraries that no start of the program needs.
#pragma once

#include "window/Windows.h"

namespace lindrel {

// A function of a library in the system's own folder, or nullptr when either is not there. Function is a
// pointer type. The library is loaded when it is wanted for the first time, and stays: its windows may still
// be open.
template <typename Function>
Function SystemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace lindrel
