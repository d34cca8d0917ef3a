#include "system/Clipboard.h"

#include <ole2.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <vector>

#include "files/Patience.h"

namespace lindrel {

namespace {

constexpr std::chrono::milliseconds kPatience{200};

// A program that watches the clipboard may have it open, usually only for a moment.
bool OpenPatiently(HWND owner) {
    Patience patience(kPatience);
    do {
        if (OpenClipboard(owner)) return true;
    } while (patience.Pause());
    return false;
}

// The owner may render its data only when asked for it. If it hangs, asking would hang this program too.
bool OwnerAnswers() {
    const HWND owner = GetClipboardOwner();
    return owner == nullptr ||
           SendMessageTimeoutW(owner, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatience.count(), nullptr) != 0;
}

class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) : open_(OpenPatiently(owner)), usable_(open_ && OwnerAnswers()) {
        if (!usable_) static_cast<void>(MessageBeep(MB_OK));  // a machine without sound stays silent
    }
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return usable_; }

  private:
    bool open_;
    bool usable_;
};

struct FreeItem {
    UINT Format = 0;
    void operator()(HANDLE data) const noexcept {
        STGMEDIUM medium{};
        medium.tymed = Medium();
        medium.hGlobal = data;
        ReleaseStgMedium(&medium);
    }

  private:
    DWORD Medium() const {
        switch (Format) {
            case CF_BITMAP:
            case CF_PALETTE:
                return TYMED_GDI;
            case CF_ENHMETAFILE:
                return TYMED_ENHMF;
            case CF_METAFILEPICT:
                return TYMED_MFPICT;
            default:
                return TYMED_HGLOBAL;
        }
    }
};

// Data for the clipboard in one format; freed unless it is put there.
using ClipboardItem = std::unique_ptr<void, FreeItem>;

void Put(ClipboardItem item) {
    if (SetClipboardData(item.get_deleter().Format, item.get()) == nullptr) return;
    static_cast<void>(item.release());  // Windows owns it now
}

// A null item if there is no memory.
ClipboardItem CopyOf(UINT format, const void* bytes, std::size_t size) {
    ClipboardItem item(GlobalAlloc(GMEM_MOVEABLE, size), {format});
    void* const memory = item == nullptr ? nullptr : GlobalLock(item.get());
    if (memory == nullptr) return {};
    std::memcpy(memory, bytes, size);
    GlobalUnlock(item.get());
    return item;
}

// Pictures, sounds and files. Any other format beside the new text would be pasted instead of it.
bool IsNoText(UINT format) {
    constexpr UINT kStandard[] = {CF_BITMAP,      CF_DIB,  CF_DIBV5, CF_PALETTE, CF_METAFILEPICT,
                                  CF_ENHMETAFILE, CF_TIFF, CF_RIFF,  CF_WAVE,    CF_HDROP};
    static const UINT registered[] = {RegisterClipboardFormatW(L"PNG"),
                                      RegisterClipboardFormatW(L"Preferred DropEffect")};
    return std::ranges::count(kStandard, format) != 0 || std::ranges::count(registered, format) != 0;
}

// Copies of what must survive EmptyClipboard, in its order. What cannot be copied is left out.
std::vector<ClipboardItem> CopiesOfNoText() {
    std::vector<ClipboardItem> copies;
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
        const HANDLE data = IsNoText(format) ? GetClipboardData(format) : nullptr;
        if (data == nullptr) continue;
        ClipboardItem copy(OleDuplicateData(data, static_cast<CLIPFORMAT>(format), 0), {format});
        if (copy != nullptr) copies.push_back(std::move(copy));
    }
    return copies;
}

}  // namespace

std::wstring ClipboardText(HWND owner) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return {};
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return {};
    const auto* const text = static_cast<const wchar_t*>(GlobalLock(data));
    if (text == nullptr) return {};
    // Memory of another program; there may be no NUL in it.
    std::wstring copy(text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t)));
    GlobalUnlock(data);
    return copy;
}

void SetClipboardText(HWND owner, const std::wstring& text) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    ClipboardItem copy = CopyOf(CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    if (copy == nullptr) return;
    std::vector<ClipboardItem> kept = CopiesOfNoText();
    if (!EmptyClipboard()) return;
    // First, because programs that can paste several formats take the first one.
    Put(std::move(copy));
    // For programs that paste bytes: without it, Windows converts the text to the code page of the keyboard.
    const LCID language = GetSystemDefaultLCID();
    if (ClipboardItem locale = CopyOf(CF_LOCALE, &language, sizeof language)) Put(std::move(locale));
    for (ClipboardItem& item : kept) Put(std::move(item));
}

}  // namespace lindrel
