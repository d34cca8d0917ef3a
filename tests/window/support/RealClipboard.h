// The real clipboard, as other programs use it. All functions throw std::runtime_error if it cannot be used.
#pragma once

#include <cstring>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "tests/window/support/Polling.h"

namespace lindrel::testing {

class OpenedClipboard {
  public:
    // Waits: somebody else may be reading it.
    OpenedClipboard() {
        WaitUntil("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
    }
    ~OpenedClipboard() { CloseClipboard(); }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    static void Demand(bool good) {
        if (!good) throw std::runtime_error("the clipboard cannot be used");
    }
    std::string Bytes(UINT format) const {
        const HANDLE data = GetClipboardData(format);
        Demand(data != nullptr);
        std::string bytes(static_cast<const char*>(GlobalLock(data)), GlobalSize(data));
        GlobalUnlock(data);
        return bytes;
    }
};

// Replaces what is on it by data in several formats, in the order of their numbers.
inline void PutClipboardForms(const std::map<UINT, std::string>& forms) {
    const OpenedClipboard clipboard;
    OpenedClipboard::Demand(EmptyClipboard() != FALSE);
    for (const auto& [format, bytes] : forms) {
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        OpenedClipboard::Demand(memory != nullptr);
        std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
        GlobalUnlock(memory);
        OpenedClipboard::Demand(SetClipboardData(format, memory) != nullptr);
    }
}
inline void PutClipboardBytes(UINT format, const std::string& bytes) {
    PutClipboardForms({{format, bytes}});
}
inline void PutClipboardText(const std::wstring& text) {
    const auto* const bytes = reinterpret_cast<const char*>(text.c_str());
    PutClipboardBytes(CF_UNICODETEXT, std::string(bytes, (text.size() + 1) * sizeof(wchar_t)));
}
inline void EmptyTheClipboard() {
    PutClipboardForms({});
}

// All formats on it, including those that the system makes of others; and the data in one.
inline std::set<UINT> FormsOnClipboard() {
    const OpenedClipboard clipboard;
    std::set<UINT> forms;
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format))
        forms.insert(format);
    return forms;
}
inline std::string BytesOnClipboard(UINT format) {
    return OpenedClipboard().Bytes(format);
}
// std::nullopt when there is none.
inline std::optional<std::wstring> TextOnClipboard() {
    const OpenedClipboard clipboard;
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return std::nullopt;
    const std::string bytes = clipboard.Bytes(CF_UNICODETEXT);
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
    return text.c_str();  // what comes after the end of the text is dropped
}

}  // namespace lindrel::testing
