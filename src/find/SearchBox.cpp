#include "find/SearchBox.h"

#include "find/EntrySearch.h"
#include "find/WebServices.h"
#include "system/MsgBox.h"
#include "system/Shell.h"
#include "window/Display.h"

namespace lindrel {

namespace {

constexpr int kFrameBorder = 90;  // twips; the controls inside begin at 150

}  // namespace

void SearchBox::Create(HWND window) {
    window_ = window;
    FrameSearch = CreateControl(window, WC_BUTTONW, L"&keresés", BS_GROUPBOX, ID_frmStart_FrameSearch);
    frame_messages_.Attach(FrameSearch, [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnFrameMessage(message, wparam, lparam);
    });
    cmbFinders = ComboBox(CreateControl(window, WC_COMBOBOXW, L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST,
                                        ID_frmStart_cmbFinders));
    for (const WebService& service : kWebServices) cmbFinders.Add(service.Name);
    cmbFinders.Select(0);
    // Names the next field for screen readers. It is hidden, since frame and picture tell enough on the
    // screen.
    Control(CreateControl(window, WC_STATICW, L"keresett szöveg", SS_LEFT, ID_frmStart_lblFind)).Show(false);
    txtFind = TextBox(CreateControl(window, WC_EDITW, L"", WS_TABSTOP | ES_AUTOHSCROLL, ID_frmStart_txtFind,
                                    WS_EX_CLIENTEDGE));
    text_messages_.Attach(txtFind.Handle(), [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnTextMessage(message, wparam, lparam);
    });
    constexpr wchar_t kSearch[] = L"Keresés";
    Image1.Attach(
        CreateControl(window, WC_BUTTONW, kSearch, WS_TABSTOP | PictureButton::kStyle, ID_frmStart_Image1));
    tool_tips_.Set(window, cmbFinders.Handle(), L"keress az interneten");
    tool_tips_.Set(window, txtFind.Handle(), L"a keresett szó");
    tool_tips_.Set(window, Image1.Handle(), kSearch);
}

// A group box covers the controls in it and paints no background. Cut out to its border, and filling that
// itself, it overlaps nothing, so it does not matter what is painted first.
std::optional<LRESULT> SearchBox::OnFrameMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ERASEBKGND) {
        FillRgn(reinterpret_cast<HDC>(wparam), BorderOfFrame().get(), GetSysColorBrush(COLOR_BTNFACE));
        return TRUE;
    }
    if (message != WM_SIZE && message != WM_SETFONT) return std::nullopt;
    const LRESULT result = frame_messages_.Default(message, wparam, lparam);
    Owned<HRGN> border = BorderOfFrame();
    // From then on the region is the system's.
    if (SetWindowRgn(FrameSearch, border.get(), TRUE)) static_cast<void>(border.release());
    return result;
}

Owned<HRGN> SearchBox::BorderOfFrame() const {
    RECT client{};
    GetClientRect(FrameSearch, &client);
    const int width = PixelsOf(kFrameBorder, DpiOf(window_));
    auto* const font = reinterpret_cast<HFONT>(SendMessageW(FrameSearch, WM_GETFONT, 0, 0));
    const int caption = static_cast<int>(TextSize(font, L"k").cy);
    Owned<HRGN> border(CreateRectRgnIndirect(&client));
    const Owned<HRGN> inside(CreateRectRgn(width, caption, client.right - width, client.bottom - width));
    CombineRgn(border.get(), border.get(), inside.get(), RGN_DIFF);
    return border;
}

bool SearchBox::OnCommand(int id, int event) {
    if (id == ID_frmStart_Image1) {
        Image1_Click();
        return true;
    }
    if (id != ID_frmStart_txtFind) return false;
    if (event == EN_CHANGE) txtFind_Change();
    if (event == EN_SETFOCUS) txtFind_GotFocus();
    return true;
}

void SearchBox::Image1_Click() {
    constexpr std::size_t kShortestText = 2;
    const std::wstring text = txtFind.Text();
    if (text.size() < kShortestText) return;
    if (cmbFinders.Selected() > 0) {
        OpenAddress(window_, ServiceAddress(cmbFinders.Selected(), text));
        return cmbFinders.Select(0);
    }
    if (open_.TheBook.CategoryCounts(open_.CurrentCategory) == 0) return;
    FindInCategory(open_.TheBook, text, open_.CurrentCategory, FindPosition);
    if (FindPosition == 0)
        MsgBox(window_, L"Nem találtam többet");
    else
        Found(FindPosition);  // the focus stays here, so that Enter goes on to the next
}

bool SearchBox::txtFind_KeyPress(wchar_t KeyAscii) {
    constexpr wchar_t kEnter = 13;
    if (KeyAscii == kEnter) Image1_Click();
    return KeyAscii == kEnter;
}

std::optional<LRESULT> SearchBox::OnTextMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    // A single-line text box would only beep at Enter.
    if (message == WM_CHAR && txtFind_KeyPress(static_cast<wchar_t>(wparam))) return 0;
    // Otherwise the keyboard navigation of the window would take Enter.
    const auto* const asked = reinterpret_cast<const MSG*>(lparam);
    if (message == WM_GETDLGCODE && asked != nullptr && asked->wParam == VK_RETURN)
        return text_messages_.Default(message, wparam, lparam) | DLGC_WANTMESSAGE;
    return std::nullopt;
}

}  // namespace lindrel
