#include "system/Clipboard.h"

#include <ole2.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

#include "files/Patience.h"

namespace lindrel {

namespace {

constexpr std::chrono::milliseconds kPatience{200};

// Another program has it open only for a moment, as a rule: the one that shows what was copied last.
bool OpenPatiently(HWND owner) {
    Patience patience(kPatience);
    do {
        if (OpenClipboard(owner)) return true;
    } while (patience.Pause());
    return false;
}

// Data may be made only when it is asked for, by the program that offered it. One that hangs would hang us.
bool OwnerAnswers() {
    const HWND owner = GetClipboardOwner();
    return owner == nullptr ||
           SendMessageTimeoutW(owner, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatience.count(), nullptr) != 0;
}

class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) : open_(OpenPatiently(owner)), usable_(open_ && OwnerAnswers()) {}
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

struct ClipboardItem {
    UINT Format;
    HANDLE Data;
};

DWORD MediumOf(UINT format) {
    switch (format) {
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

void Free(const ClipboardItem& item) {
    STGMEDIUM medium{};
    medium.tymed = MediumOf(item.Format);
    medium.hGlobal = item.Data;
    ReleaseStgMedium(&medium);
}

// What is put on the clipboard is the system's; what is not is given back here.
void Put(const ClipboardItem& item) {
    if (SetClipboardData(item.Format, item.Data) == nullptr) Free(item);
}

// Null when there is no memory.
HANDLE GlobalCopy(const void* bytes, std::size_t size) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr) return nullptr;
    void* const place = GlobalLock(memory);
    if (place == nullptr) {
        GlobalFree(memory);
        return nullptr;
    }
    std::memcpy(place, bytes, size);
    GlobalUnlock(memory);
    return memory;
}

// Pictures and files; another form of a text beside the new one would be pasted in its place.
bool IsNoText(UINT format) {
    constexpr UINT kStandard[] = {CF_BITMAP,      CF_DIB,  CF_DIBV5, CF_PALETTE, CF_METAFILEPICT,
                                  CF_ENHMETAFILE, CF_TIFF, CF_RIFF,  CF_WAVE,    CF_HDROP};
    static const UINT registered[] = {RegisterClipboardFormatW(L"PNG"),
                                      RegisterClipboardFormatW(L"Preferred DropEffect")};
    return std::find(std::begin(kStandard), std::end(kStandard), format) != std::end(kStandard) ||
           std::find(std::begin(registered), std::end(registered), format) != std::end(registered);
}

// Copies of what stays on the clipboard when it is emptied, in its order. One that cannot be copied is left
// out.
std::vector<ClipboardItem> CopiesOfNoText() {
    std::vector<ClipboardItem> copies;
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
        if (!IsNoText(format)) continue;
        const HANDLE data = GetClipboardData(format);
        const HANDLE copy =
            data == nullptr ? nullptr : OleDuplicateData(data, static_cast<CLIPFORMAT>(format), 0);
        if (copy != nullptr) copies.push_back({format, copy});
    }
    return copies;
}

}  // namespace

void SetClipboardText(HWND owner, const std::wstring& text) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) return;
    const HANDLE copy = GlobalCopy(text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    if (copy == nullptr) return;
    const std::vector<ClipboardItem> kept = CopiesOfNoText();
    if (!EmptyClipboard()) {
        Free({CF_UNICODETEXT, copy});
        for (const ClipboardItem& item : kept) Free(item);
        return;
    }
    // First, so that a program that could paste several of them takes what was copied last.
    Put({CF_UNICODETEXT, copy});
    // For programs that ask for bytes: without it these would be in the code page of the keyboard's language.
    const LCID language = GetSystemDefaultLCID();
    if (const HANDLE locale = GlobalCopy(&language, sizeof language)) Put({CF_LOCALE, locale});
    for (const ClipboardItem& item : kept) Put(item);
}

}  // namespace lindrel
