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
    std::wstring copy(text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t)));
    static_cast<void>(GlobalUnlock(data));  // 0 means that nobody locks it any more
    return copy;
}

namespace {

// Memory that the clipboard takes over; null when there is none.
template <typename Character>
HGLOBAL GlobalCopy(const Character* text, std::size_t length) {
    const std::size_t bytes = length * sizeof(Character);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr) return nullptr;
    void* const place = GlobalLock(memory);
    if (place == nullptr) {
        static_cast<void>(GlobalFree(memory));  // nothing else can be done with it
        return nullptr;
    }
    std::memcpy(place, text, bytes);
    static_cast<void>(GlobalUnlock(memory));  // 0 means that nobody locks it any more
    return memory;
}

bool PutOnClipboard(UINT format, HGLOBAL memory) {
    if (memory == nullptr) return false;
    if (SetClipboardData(format, memory) != nullptr) return true;
    static_cast<void>(GlobalFree(memory));  // still ours
    return false;
}

}  // namespace

void SetClipboardText(HWND owner, const std::wstring& text) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    const std::size_t length = text.size() + 1;
    if (!PutOnClipboard(CF_UNICODETEXT, GlobalCopy(text.c_str(), length))) return;
    // The clipboard is not emptied first (intended: a picture on it stays), so an older text in the machine's
    // code page would stay as well.
    std::string narrow(length * 4, '\0');
    const int used = WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(length), narrow.data(),
                                         static_cast<int>(narrow.size()), nullptr, nullptr);
    if (used > 0)
        static_cast<void>(
            PutOnClipboard(CF_TEXT, GlobalCopy(narrow.c_str(), static_cast<std::size_t>(used))));
}

}  // namespace lindrel
