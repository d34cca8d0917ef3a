#include "window/Control.h"

#include <algorithm>

#include "faults/LastError.h"
#include "window/Display.h"

namespace lindrel {

namespace {

// With each "&" doubled; a single one would underline the next character as an access key.
std::wstring WithoutAccessKeys(std::wstring_view text) {
    std::wstring doubled;
    for (const wchar_t character : text) doubled.append(character == L'&' ? 2 : 1, character);
    return doubled;
}

// A text of at most `length` characters. `copy` writes it with its NUL and returns its length.
template <typename Copy>
std::wstring Copied(LRESULT length, Copy&& copy) {
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied = copy(text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(copied, 0)));
    return text;
}

}  // namespace

std::wstring TextOf(HWND window) {
    return Copied(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0), [window](WPARAM size, LPARAM buffer) {
        return SendMessageW(window, WM_GETTEXT, size, buffer);
    });
}

std::wstring InLines(std::wstring text, std::size_t length) {
    for (std::size_t end = length; end < text.size(); end += length + 2) text.insert(end, L"\r\n");
    return text;
}

HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style) {
    auto* const module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
    const HWND control =
        CreateWindowExW(extended_style, window_class, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), module, nullptr);
    if (control == nullptr) ThrowLastError(L"vezérlő létrehozása", window_class);
    return control;
}

int Control::WidthOf(std::wstring_view text) const {
    return static_cast<int>(TextSize(reinterpret_cast<HFONT>(Send(WM_GETFONT)), text).cx);
}

void Control::AddLine(UINT message, std::wstring_view text) const {
    const std::wstring terminated(text);
    if (Send(message, 0, reinterpret_cast<LPARAM>(terminated.c_str())) < 0)
        throw SystemFault(L"sor hozzáadása egy listához", 0);
}

void TextBox::Select(int start, int length) const {
    const int end = GetWindowTextLengthW(Handle());
    const int from = std::clamp(start, 0, end);
    const int to = from + std::clamp(length, 0, end - from);
    Send(EM_SETSEL, static_cast<WPARAM>(from), to);
    Send(EM_SCROLLCARET);
}

std::wstring TextBox::SelectedText() const {
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return Text().substr(start, end - start);
}

bool TextBox::ShowsWholeText() const {
    RECT room{};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    return WidthOf(Text()) <= room.right - room.left;
}

std::wstring ComboBox::Item(int index) const {
    const auto item = static_cast<WPARAM>(index);
    return Copied(Send(CB_GETLBTEXTLEN, item),
                  [this, item](std::size_t, LPARAM buffer) { return Send(CB_GETLBTEXT, item, buffer); });
}

void ComboBox::WidenList() const {
    int widest = 0;
    for (int i = 0; i < Count(); ++i) widest = std::max(widest, WidthOf(Item(i)));
    const int width = widest + GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
    Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
}

void TabStrip::Add(std::wstring_view caption) const {
    std::wstring text = WithoutAccessKeys(caption);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    if (TabCtrl_InsertItem(Handle(), TabCtrl_GetItemCount(Handle()), &item) == -1)
        throw SystemFault(L"fül hozzáadása", 0);
}

void TabStrip::SetCaption(int position, std::wstring_view caption) const {
    std::wstring text = WithoutAccessKeys(caption);
    std::wstring shown(text.size() + 2, L'\0');
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = shown.data();
    item.cchTextMax = static_cast<int>(shown.size());
    // The control measures all captions again when one is set. It may return a pointer to its own text
    // instead of filling the buffer.
    if (TabCtrl_GetItem(Handle(), position - 1, &item) && item.pszText != nullptr && text == item.pszText)
        return;
    item.pszText = text.data();
    TabCtrl_SetItem(Handle(), position - 1, &item);
}

}  // namespace lindrel
