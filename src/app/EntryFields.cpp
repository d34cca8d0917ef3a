#include "app/EntryFields.h"

#include "system/Clipboard.h"
#include "system/Shell.h"

namespace lindrel {

// Screen readers name a field after the label just before it.
void EntryFields::Create(HWND window) {
    window_ = window;
    constexpr DWORD kField = WS_TABSTOP | ES_AUTOHSCROLL | ES_READONLY;
    CreateControl(window, WC_STATICW, L"Webhely neve", SS_LEFT, ID_frmStart_lblSiteName);
    txtSite = TextBox(CreateControl(window, WC_EDITW, L"", kField, ID_frmStart_txtSite, WS_EX_CLIENTEDGE));
    CreateControl(window, WC_STATICW, L"URL", SS_LEFT, ID_frmStart_lblURL);
    txtURL = TextBox(CreateControl(window, WC_EDITW, L"", kField, ID_frmStart_txtURL, WS_EX_CLIENTEDGE));
    url_messages_.Attach(txtURL.Handle(), [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return OnUrlMessage(message, wparam, lparam);
    });
    constexpr wchar_t kGo[] = L"Ugorj a web oldalra";
    picGo.Attach(
        CreateControl(window, WC_BUTTONW, kGo, WS_TABSTOP | PictureButton::kStyle, ID_frmStart_picGo));
    tool_tips_.Set(window, picGo.Handle(), kGo);
}

void EntryFields::Show(const std::wstring& name, const std::wstring& address) {
    txtSite.SetText(name);
    txtURL.SetText(address);
    ShowWholeTexts();
}

void EntryFields::ShowWholeTexts() {
    for (const TextBox& field : {txtSite, txtURL})
        tool_tips_.Set(window_, field.Handle(), field.ShowsWholeText() ? L"" : field.Text());
}

bool EntryFields::OnCommand(int id) const {
    if (id != ID_frmStart_picGo) return false;
    picGo_Click();
    return true;
}

void EntryFields::picGo_Click() const {
    if (HasAddress()) OpenAddress(window_, txtURL.Text());
}

std::optional<LRESULT> EntryFields::OnUrlMessage(UINT message, WPARAM wparam, LPARAM lparam) const {
    if (message != WM_LBUTTONDBLCLK && message != WM_CHAR) return std::nullopt;
    const LRESULT result = url_messages_.Default(message, wparam, lparam);
    if (message == WM_LBUTTONDBLCLK) txtURL_DblClick();
    if (message == WM_CHAR) txtURL_KeyPress(static_cast<wchar_t>(wparam));
    return result;
}

void EntryFields::txtURL_DblClick() const {
    if (HasAddress()) SetClipboardText(window_, txtURL.Text());
}

void EntryFields::txtURL_KeyPress(wchar_t KeyAscii) const {
    constexpr wchar_t kControlC = 3;
    if (KeyAscii == kControlC) SetClipboardText(window_, txtURL.SelectedText());
}

}  // namespace lindrel
