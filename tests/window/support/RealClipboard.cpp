#include "tests/window/support/RealClipboard.h"

#include <cstring>
#include <stdexcept>

#include "tests/window/support/Polling.h"

namespace lindrel::testing {

namespace {

void Demand(bool good) {
    if (!good) throw std::runtime_error("the clipboard cannot be used");
}

class OpenedClipboard {
  public:
    OpenedClipboard() {
        // Somebody may just be reading it.
        WaitUntil("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
    }
    ~OpenedClipboard() { CloseClipboard(); }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

void Add(UINT format, const void* bytes, std::size_t size) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    Demand(memory != nullptr);
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    Demand(SetClipboardData(format, memory) != nullptr);
}

void Put(UINT format, const void* bytes, std::size_t size) {
    const OpenedClipboard clipboard;
    Demand(EmptyClipboard() != FALSE);
    Add(format, bytes, size);
}

}  // namespace

void PutClipboardText(const std::wstring& text) {
    Put(CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void PutClipboardBytes(UINT format, const std::string& bytes) {
    Put(format, bytes.data(), bytes.size());
}

void PutClipboardForms(const std::map<UINT, std::string>& forms) {
    const OpenedClipboard clipboard;
    Demand(EmptyClipboard() != FALSE);
    for (const auto& [format, bytes] : forms) Add(format, bytes.data(), bytes.size());
}

void EmptyTheClipboard() {
    const OpenedClipboard clipboard;
    Demand(EmptyClipboard() != FALSE);
}

std::optional<std::wstring> TextOnClipboard() {
    const OpenedClipboard clipboard;
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return std::nullopt;
    const std::wstring text = static_cast<const wchar_t*>(GlobalLock(data));
    GlobalUnlock(data);
    return text;
}

std::set<UINT> FormsOnClipboard() {
    const OpenedClipboard clipboard;
    std::set<UINT> forms;
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format))
        forms.insert(format);
    return forms;
}

std::string BytesOnClipboard(UINT format) {
    const OpenedClipboard clipboard;
    const HANDLE data = GetClipboardData(format);
    Demand(data != nullptr);
    std::string bytes(static_cast<const char*>(GlobalLock(data)), GlobalSize(data));
    GlobalUnlock(data);
    return bytes;
}

}  // namespace lindrel::testing
