// Small commands: stripes in the list, the page of the shown entry, tray mode.

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "resources/resource.h"

namespace lindrel {

void frmStart::mnuGridLines_Click() {
    const HMENU menu = GetMenu(handle_);
    const bool shown = (GetMenuState(menu, ID_mnuGridLines, MF_BYCOMMAND) & MF_CHECKED) == 0;
    // The old mark, or -1 for an item that is not there: it is.
    static_cast<void>(CheckMenuItem(menu, ID_mnuGridLines, shown ? MF_CHECKED : MF_UNCHECKED));
    ListURLs.ShowGridLines(shown);
}

void frmStart::mnuGoto_Click() {
    picGo_Click();
}

void frmStart::mnuTray_Click() {
    static_cast<void>(ShowWindow(handle_, SW_HIDE));  // whether it was visible before
    TrayArea.SetToolTip(kApplicationTitle);
    TrayArea.SetVisible(true);
    // Without an icon there would be no way back.
    if (!TrayArea.IsTaken()) LeaveTray();
}

// Either button brings the window back.
void frmStart::TrayArea_MouseDown(std::int16_t&) {
    LeaveTray();
}

void frmStart::LeaveTray() {
    static_cast<void>(ShowWindow(handle_, SW_SHOW));
    // Refused while another program keeps the front; the window is there all the same.
    static_cast<void>(SetForegroundWindow(handle_));
    TrayArea.SetVisible(false);
}

}  // namespace lindrel
