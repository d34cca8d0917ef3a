// Base of the dialogs. A dialog is created from a DIALOGEX template and lives on the stack of the command
// that opens it: frmMove(open).ShowModal(owner). Its OnCommand only dispatches to handlers named after
// control and event, such as cmdOk_Click().
#pragma once

#include <string>
#include <utility>

#include "window/Control.h"
#include "window/DialogScroll.h"
#include "window/SessionHold.h"
#include "window/ToolTips.h"
#include "window/Windows.h"

namespace lindrel {

class Dialog {
  public:
    explicit Dialog(int template_id) : template_id_(template_id) {}
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    // Shows the dialog centred on its owner, in the user's message font, and returns when it is closed. If
    // the screen has no room for all of it, it scrolls. The owner is disabled meanwhile. Throws what a
    // handler throws, and SystemFault if Windows cannot create the dialog; the dialog is closed then, without
    // Form_Unload, and the owner is enabled again.
    void ShowModal(HWND owner);

    HWND Handle() const { return handle_; }
    // Moves the focus as the Tab key would: a text box selects its text, and the default button changes.
    void FocusOn(int id) const {
        SendMessageW(handle_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(id)), TRUE);
    }

  protected:
    // Called before the dialog is shown. The focus then goes to the first control in the tab order, unless
    // the handler has set it.
    virtual void Form_Load() {}
    // Sets the dialog's own fonts and pictures for a resolution in dots per inch. Called after Form_Load, and
    // when the dialog has moved to a screen of another resolution and the dialog manager has given its font
    // to every control.
    virtual void ApplyResolution(UINT) {}
    // The dialog is about to close; its controls still exist.
    virtual void Form_Unload() {}
    // A control or menu item was used. `event` is the notification code (BN_CLICKED, EN_CHANGE, ...).
    // EN_SETFOCUS comes only when the user moves within the dialog, not when the dialog is activated again.
    // The default closes the dialog for IDCANCEL (Esc and the title bar's button).
    virtual void OnCommand(int id, int) {
        if (id == IDCANCEL) Unload();
    }
    // WM_NOTIFY; the result is the answer to the control.
    virtual LRESULT OnNotify(const NMHDR&) { return 0; }
    // Any message, before the dialog's own handling. Returns true if it is done with; `result` is then the
    // answer.
    virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT&) { return false; }
    // Whether the end of the session would lose what the user is doing in the dialog; the session then waits
    // until the dialog is closed.
    virtual bool HoldsSession() const { return true; }
    // A key message, before the dialog's own keyboard handling. Returns true if it is done with.
    virtual bool PreTranslate(const MSG&) { return false; }

    // Closes the dialog once the running handler has returned.
    void Unload() { ending_ = true; }

    // nullptr if there is no such control.
    HWND Item(int id) const { return GetDlgItem(handle_, id); }
    std::wstring Text(int id) const { return TextOf(Item(id)); }
    template <typename Wrapper>
    Wrapper Get(int id) const {
        return Wrapper(Item(id));
    }
    // The text shown while the mouse rests on a control; none if it is empty.
    void SetToolTip(int id, const std::wstring& text) { tool_tips_.Set(handle_, Item(id), text); }

  private:
    static INT_PTR CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
    INT_PTR Handle(UINT message, WPARAM wparam, LPARAM lparam);
    INT_PTR OnSystemMessage(UINT message);
    // Whether a text box that has gained the focus only gets it back, because the dialog is active again
    // after a message box or another program. That must leave caret and selection alone.
    bool GetsFocusBack(HWND control) { return std::exchange(left_focus_, nullptr) == control; }
    void Create(HWND owner);
    void RunModalLoop();

    int template_id_;
    HWND handle_ = nullptr;
    ToolTips tool_tips_;
    HWND left_focus_ = nullptr;  // had the focus when the dialog was deactivated
    DialogScroll scroll_;
    SessionHold session_;
    bool ending_ = false;
};

}  // namespace lindrel
