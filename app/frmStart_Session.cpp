// The end of the session of Windows.

#include "app/frmStart.h"
#include "help/HTMLHelp.h"

namespace lindrel {

// Whether the session may end, as far as the book is concerned. An open dialog answers for itself.
bool frmStart::OnQueryEndSession() {
    session_.Release();  // an earlier question may have been refused
    if (!open_.Modified) return true;
    // A program without a visible window is ended when it does not answer at once.
    if (TrayArea.Visible()) LeaveTray();
    session_.Hold(Handle(), L"A könyv módosításai még nincsenek mentve.");
    // With a box or dialog open a command is under way; saving in its middle could write half of its work.
    if (!IsWindowEnabled(Handle())) return false;
    // After a refusal the reason stays until the system has shown it.
    if (OfferToSave(SaveQuestion::Closing) == SaveAnswer::CalledOff) return false;
    session_.Release();
    return true;
}

void frmStart::OnEndSession(bool ending) {
    session_.Release();
    if (!ending) return;
    // The process can be gone as soon as this returns: what other programs show for it must go now.
    TrayArea.SetVisible(false);
    CloseHelp();
    // An installer that asked waits for the program to end. A box or dialog that is open would take the end
    // of its owner for a fault; then the system ends the process.
    if (IsWindowEnabled(Handle())) DestroyWindow(Handle());
}

}  // namespace lindrel
