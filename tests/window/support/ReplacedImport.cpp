#include "tests/window/support/ReplacedImport.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "window/Windows.h"

namespace lindrel::testing {

namespace {

// Addresses of all functions that the exe imports, which the loader has put in.
std::span<void*> Imports() {
    auto* const image = reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
    const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos.e_lfanew);
    const IMAGE_DATA_DIRECTORY& table = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IAT];
    return {reinterpret_cast<void**>(image + table.VirtualAddress), table.Size / sizeof(void*)};
}

void Write(void** entry, void* function) {
    DWORD protection = 0;
    if (!VirtualProtect(entry, sizeof function, PAGE_READWRITE, &protection))
        throw std::runtime_error("an import cannot be replaced");
    *entry = function;
    VirtualProtect(entry, sizeof function, protection, &protection);
}

}  // namespace

ReplacedImport::ReplacedImport(void* imported, void* replacement) : imported_(imported) {
    const std::span<void*> imports = Imports();
    const auto found = std::find(imports.begin(), imports.end(), imported);
    if (found == imports.end()) throw std::runtime_error("the function is not imported");
    entry_ = &*found;
    Write(entry_, replacement);
}

ReplacedImport::~ReplacedImport() {
    Write(entry_, imported_);
}

}  // namespace lindrel::testing
