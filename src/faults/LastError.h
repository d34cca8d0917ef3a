// Reports what Windows refused.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

#include "faults/Faults.h"

namespace lindrel {

// Throws SystemFault with the thread's last error number; to be called right after the function that failed.
// `asked_for` is what SystemFault takes; `name`, if any, tells which window, picture or menu it was.
[[noreturn]] inline void ThrowLastError(const wchar_t* asked_for, std::wstring_view name = {}) {
    const DWORD error = GetLastError();
    std::wstring meaning = asked_for;
    if (!name.empty()) meaning.append(L" (").append(name).append(L")");
    throw SystemFault(meaning, error);
}

}  // namespace lindrel
