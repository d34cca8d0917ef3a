// The help menu.

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "controls/Shell.h"
#include "help/HTMLHelp.h"
#include "help/HomePage.h"
#include "help/frmAbout.h"

namespace lindrel {

void frmStart::mnuHelp_Click() {
    constexpr std::int16_t kHelpOfTheProgram = 1;
    if (!FileIsThere(HelpFilePath(kHelpOfTheProgram))) {
        MsgBox(Handle(), L"Nem találom az lnd.chm fájlt", MB_OK, kErrorTitle);
        return;
    }
    ShowHelp(kHelpOfTheProgram, L"main");
}

void frmStart::mnuGoHome_Click() {
    OpenAddress(Handle(), kHomePage);
}

void frmStart::mnuAbout_Click() {
    frmAbout().ShowModal(Handle());
}

}  // namespace lindrel
