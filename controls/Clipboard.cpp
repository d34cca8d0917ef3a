#include "controls/Clipboard.h"

#include <cstring>

namespace lindrel {

namespace {

class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) : open_(OpenClipboard(owner) != FALSE) {}
    ~OpenedClipboard() {
        // Fails only when it was not open.
        if (open_) static_cast<void>(CloseClipboard());
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
    // The memory is another program's: its end need not be where the text says.
    const std::wstring copy(text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t)));
    static_cast<void>(GlobalUnlock(data));  // 0 means that nobody locks it any more
    return copy;
}

void SetClipboardText(HWND owner, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr) return;
    void* const place = GlobalLock(memory);
    if (place != nullptr) {
        std::memcpy(place, text.c_str(), bytes);
        static_cast<void>(GlobalUnlock(memory));  // 0 means that nobody locks it any more
        const OpenedClipboard clipboard(owner);
        if (clipboard && EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, memory) != nullptr) return;
    }
    static_cast<void>(GlobalFree(memory));
}

}  // namespace lindrel
