#include "controls/Clipboard.h"

#include <cstring>

namespace lindrel {

namespace {

class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) : open_(OpenClipboard(owner) != FALSE) {}
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return open_; }

  private:
    bool open_;
};

}  // namespace

std::wstring ClipboardText(HWND owner) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return {};
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return {};
    const auto* const text = static_cast<const wchar_t*>(GlobalLock(data));
    if (text == nullptr) return {};
    // Another program's memory: it may end before any NUL.
    std::wstring copy(text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t)));
    GlobalUnlock(data);
    return copy;
}

namespace {

// A copy for the clipboard to take over; null when there is no memory.
template <typename Character>
HGLOBAL GlobalCopy(const Character* text, std::size_t length) {
    const std::size_t bytes = length * sizeof(Character);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr) return nullptr;
    void* const place = GlobalLock(memory);
    if (place == nullptr) {
        GlobalFree(memory);
        return nullptr;
    }
    std::memcpy(place, text, bytes);
    GlobalUnlock(memory);
    return memory;
}

bool PutOnClipboard(UINT format, HGLOBAL memory) {
    if (memory == nullptr) return false;
    if (SetClipboardData(format, memory) != nullptr) return true;
    GlobalFree(memory);  // still ours
    return false;
}

}  // namespace

void SetClipboardText(HWND owner, const std::wstring& text) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    const std::size_t length = text.size() + 1;
    if (!PutOnClipboard(CF_UNICODETEXT, GlobalCopy(text.c_str(), length))) return;
    // The clipboard is not emptied first, so that a picture on it stays; but then an older text in the
    // machine's code page would stay too, and programs that read no other would paste it.
    std::string narrow(length * 4, '\0');
    const int used = WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(length), narrow.data(),
                                         static_cast<int>(narrow.size()), nullptr, nullptr);
    if (used > 0)
        // When it cannot be put there, most programs still find the other one.
        static_cast<void>(
            PutOnClipboard(CF_TEXT, GlobalCopy(narrow.c_str(), static_cast<std::size_t>(used))));
}

}  // namespace lindrel
