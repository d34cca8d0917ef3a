// The base of the dialogs. A dialog is made from a DIALOGEX template, lives on the stack of the command that
// opens it, and turns messages into handlers named after control and event:
//
//     class frmMove : public Dialog {
//       public:
//         explicit frmMove(OpenBook& open) : Dialog(IDD_frmMove), open_(open) {}
//       private:
//         void Form_Load() override;
//         void OnCommand(int id, int event) override;   // only dispatches: case ID_frmMove_cmdOk:
//         void cmdOk_Click();
//     };
//     frmMove(open).ShowModal(owner);
#pragma once

#include <string>

#include "window/Control.h"
#include "window/ReturnedFocus.h"
#include "window/SessionHold.h"
#include "window/ToolTips.h"
#include "window/Windows.h"

namespace lindrel {

class Dialog {
  public:
    explicit Dialog(int template_id) : template_id_(template_id) {}
    virtual ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    // Shows the dialog centred on its owner, in the user's message font, and returns when it is closed. The
    // owner is disabled meanwhile. Throws what a handler throws, and SystemFault when the system cannot;
    // the dialog is gone then, without Form_Unload, and the owner is usable again.
    void ShowModal(HWND owner);

    HWND Handle() const { return handle_; }
    // Moves the focus as the tab key would: a text box selects its text, the default button follows.
    void FocusOn(int id) const;

  protected:
    // Before the dialog is first shown. Returning leaves the focus on the first control in the tab order
    // unless the handler has set it.
    virtual void Form_Load() {}
    // Sets fonts and pictures of the dialog's own for a resolution: after Form_Load, and when the dialog has
    // come to a screen of another resolution, where the dialog manager has given its font to every control.
    virtual void ApplyResolution(UINT) {}
    // The dialog is about to close; its controls are still there.
    virtual void Form_Unload() {}
    // A control or menu item was used. `event` is the notification code (BN_CLICKED, EN_CHANGE, ...);
    // EN_SETFOCUS only comes when the user moves in the dialog, not when the dialog comes to the front again.
    // The default closes the dialog for IDCANCEL (Esc and the title bar's button).
    virtual void OnCommand(int id, int event);
    // WM_NOTIFY; the result is the answer to the control.
    virtual LRESULT OnNotify(const NMHDR& header);
    // Any message, before the dialog's own handling; true when done, `result` is then the answer.
    virtual bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);
    // Whether the end of the session would lose what the user does in the dialog; the session then waits
    // until the dialog is closed.
    virtual bool HoldsSession() const { return true; }
    // A key message before the dialog's own keyboard handling; true swallows it.
    virtual bool PreTranslate(const MSG& message);

    // Closes the dialog once the running handler has returned.
    void Unload() { ending_ = true; }

    HWND Item(int id) const { return GetDlgItem(handle_, id); }
    std::wstring Text(int id) const { return TextOf(Item(id)); }
    template <typename Wrapper>
    Wrapper Get(int id) const {
        return Wrapper(Item(id));
    }
    // The text shown while the mouse rests on a control.
    void SetToolTip(int id, const std::wstring& text) { tool_tips_.Set(handle_, Item(id), text); }

  private:
    static INT_PTR CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
    INT_PTR Handle(UINT message, WPARAM wparam, LPARAM lparam);
    INT_PTR OnSystemMessage(UINT message);
    bool OnQueryEndSession();
    void Create(HWND owner);
    void RunModalLoop();

    int template_id_;
    HWND handle_ = nullptr;
    ToolTips tool_tips_;
    ReturnedFocus returned_focus_;
    SessionHold session_;
    bool ending_ = false;
};

}  // namespace lindrel
