#include "help/frmAbout.h"

#include <string>
#include <utility>

#include "Version.h"
#include "help/HomePage.h"
#include "resources/resource.h"
#include "system/MsgBox.h"
#include "system/Shell.h"

namespace lindrel {

namespace {

constexpr int kIconSide = 48;  // in pixels at 96 dpi

LOGFONTW TitleFont(UINT dpi) {
    LOGFONTW font = MessageFont(dpi);
    font.lfHeight = font.lfHeight * 5 / 3;
    font.lfWeight = FW_BOLD;
    return font;
}

}  // namespace

frmAbout::frmAbout() : Dialog(IDD_frmAbout) {}

void frmAbout::Form_Load() {
    const std::wstring title = kApplicationTitle;
    SetWindowTextW(Handle(), (title + L" névjegye").c_str());
    Get<Control>(ID_frmAbout_lblTitle).SetText(title);
    Get<Control>(ID_frmAbout_lblVersion).SetText(L"Version " LINDREL_VERSION_TEXT);
    Get<Control>(ID_frmAbout_Label1).SetText(L"<a>" + std::wstring(kHomePage) + L"</a>");
    // Not on the link, which is the first control: Enter closes the box.
    FocusOn(ID_frmAbout_cmdOK);
}

void frmAbout::ApplyResolution(UINT dpi) {
    Picture icon(GetModuleHandleW(nullptr), IDI_frmStart,
                 MulDiv(kIconSide, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI));
    SendMessageW(Item(ID_frmAbout_picIcon), STM_SETICON, reinterpret_cast<WPARAM>(icon.Handle()), 0);
    icon_ = std::move(icon);
    Font title_font(TitleFont(dpi));
    SendMessageW(Item(ID_frmAbout_lblTitle), WM_SETFONT, reinterpret_cast<WPARAM>(title_font.Handle()), TRUE);
    title_font_ = std::move(title_font);
}

void frmAbout::OnCommand(int id, int) {
    if (id == ID_frmAbout_cmdOK || id == IDCANCEL) cmdOK_Click();
}

LRESULT frmAbout::OnNotify(const NMHDR& header) {
    const bool used = header.code == NM_CLICK || header.code == NM_RETURN;
    if (header.idFrom == ID_frmAbout_Label1 && used) Label1_Click();
    return 0;
}

void frmAbout::Label1_Click() {
    // The shell reports an address that it cannot open.
    static_cast<void>(OpenAddress(Handle(), kHomePage));
}

}  // namespace lindrel
