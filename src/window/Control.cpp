#include "window/Control.h"

#include <algorithm>

#include "faults/Faults.h"

namespace lindrel {

namespace {

// "&" doubled: a single one would mark an access key.
std::wstring WithoutAccessKeys(std::wstring_view text) {
    std::wstring doubled;
    for (const wchar_t character : text) doubled.append(character == L'&' ? 2 : 1, character);
    return doubled;
}

// Width in pixels of the widest of some texts in the font of a control; 0 when the system cannot say.
int WidestOf(const Control& control, const std::vector<std::wstring>& texts) {
    const HDC screen = GetDC(control.Handle());
    if (screen == nullptr) return 0;
    const HGDIOBJ before =
        SelectObject(screen, reinterpret_cast<HFONT>(SendMessageW(control.Handle(), WM_GETFONT, 0, 0)));
    LONG widest = 0;
    for (const std::wstring& text : texts) {
        SIZE size{};
        // Without an answer the text asks for no width.
        static_cast<void>(GetTextExtentPoint32W(screen, text.c_str(), static_cast<int>(text.size()), &size));
        widest = std::max(widest, size.cx);
    }
    SelectObject(screen, before);
    ReleaseDC(control.Handle(), screen);
    return static_cast<int>(widest);
}

}  // namespace

std::wstring TextOf(HWND window) {
    const LRESULT length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied = SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                        reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(copied, 0)));
    return text;
}

HWND CreateControl(HWND parent, const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                   DWORD extended_style) {
    auto* const module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
    const HWND control =
        CreateWindowExW(extended_style, window_class, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), module, nullptr);
    if (control == nullptr)
        throw SystemFault(L"vezérlő létrehozása (" + std::wstring(window_class) + L")", GetLastError());
    return control;
}

void Control::SetText(std::wstring_view text) const {
    SetWindowTextW(handle_, std::wstring(text).c_str());
}

void Control::Enable(bool enabled) const {
    EnableWindow(handle_, enabled);
}

void Control::Show(bool shown) const {
    ShowWindow(handle_, shown ? SW_SHOW : SW_HIDE);
}

void Control::SetFocus() const {
    ::SetFocus(handle_);
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
    return WidestOf(*this, {Text()}) <= room.right - room.left;
}

void TextBox::SetHint(const std::wstring& text) const {
    Send(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void CheckBox::SetChecked(bool checked) const {
    Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

void ComboBox::Add(std::wstring_view text) const {
    const std::wstring terminated(text);
    if (Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(terminated.c_str())) < 0)
        throw SystemFault(L"sor hozzáadása egy listához", GetLastError());
}

void ComboBox::Select(int index) const {
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
}

std::wstring ComboBox::Item(int index) const {
    const auto item = static_cast<WPARAM>(index);
    const LRESULT length = Send(CB_GETLBTEXTLEN, item);
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied = Send(CB_GETLBTEXT, item, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(copied, 0)));
    return text;
}

void ListBox::Add(std::wstring_view text) const {
    const std::wstring terminated(text);
    if (Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(terminated.c_str())) < 0)
        throw SystemFault(L"sor hozzáadása egy listához", GetLastError());
}

void ComboBox::WidenList() const {
    std::vector<std::wstring> items;
    items.reserve(static_cast<std::size_t>(Count()));
    for (int i = 0; i < Count(); ++i) items.push_back(Item(i));
    const int edges = GetSystemMetrics(SM_CXVSCROLL) + 4 * GetSystemMetrics(SM_CXEDGE);
    const int width = WidestOf(*this, items) + edges;
    Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
}

void TabStrip::Add(std::wstring_view caption) const {
    std::wstring text = WithoutAccessKeys(caption);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    if (TabCtrl_InsertItem(Handle(), TabCtrl_GetItemCount(Handle()), &item) == -1)
        throw SystemFault(L"fül hozzáadása", GetLastError());
}

void TabStrip::SetCaption(int position, std::wstring_view caption) const {
    std::wstring text = WithoutAccessKeys(caption);
    std::wstring shown(text.size() + 2, L'\0');
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = shown.data();
    item.cchTextMax = static_cast<int>(shown.size());
    // At a new caption the control measures all of them. It may show its own text instead of filling the
    // buffer.
    if (TabCtrl_GetItem(Handle(), position - 1, &item) && item.pszText != nullptr && text == item.pszText)
        return;
    item.pszText = text.data();
    TabCtrl_SetItem(Handle(), position - 1, &item);
}

int TabStrip::Selected() const {
    return TabCtrl_GetCurSel(Handle()) + 1;
}

void TabStrip::Select(int position) const {
    TabCtrl_SetCurSel(Handle(), position - 1);
}

void StatusBar::SetPanel(int panel, std::wstring_view text) const {
    Send(SB_SETTEXTW, static_cast<WPARAM>(panel - 1), reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
}

void StatusBar::SetPanels(const std::vector<int>& right_edges) const {
    Send(SB_SETPARTS, right_edges.size(), reinterpret_cast<LPARAM>(right_edges.data()));
}

}  // namespace lindrel
