// A function of the system, replaced by a test's own in all calls from the test process itself.
#pragma once

#include <algorithm>
#include <span>
#include <stdexcept>

#include "window/Windows.h"

namespace lindrel::testing {

class ReplacedImport {
  public:
    // For as long as this object lives; no other thread may be calling the function when its life begins or
    // ends. A replacement that passes calls on must have taken the function's address before. Throws
    // std::runtime_error if the process does not import the function.
    template <typename Function>
    ReplacedImport(Function* imported, Function* replacement) : imported_(reinterpret_cast<void*>(imported)) {
        const std::span<void*> imports = Imports();
        const auto found = std::find(imports.begin(), imports.end(), imported_);
        if (found == imports.end()) throw std::runtime_error("the function is not imported");
        entry_ = &*found;
        Write(entry_, reinterpret_cast<void*>(replacement));
    }
    ~ReplacedImport() { Write(entry_, imported_); }
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

  private:
    // The addresses of all functions that the exe imports, as the loader has put them in.
    static std::span<void*> Imports() {
        auto* const image = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
        const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
        const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos.e_lfanew);
        const IMAGE_DATA_DIRECTORY& table = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
        return {reinterpret_cast<void**>(image + table.VirtualAddress), table.Size / sizeof(void*)};
    }
    static void Write(void** entry, void* function) {
        DWORD protection = 0;
        if (!VirtualProtect(entry, sizeof function, PAGE_READWRITE, &protection))
            throw std::runtime_error("an import cannot be replaced");
        *entry = function;
        VirtualProtect(entry, sizeof function, protection, &protection);
    }

    void** entry_ = nullptr;  // where the process keeps the function's address
    void* imported_;
};

}  // namespace lindrel::testing
