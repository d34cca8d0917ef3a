// The main window. It owns the open book, the parts of the window that show it, and the commands of the
// menus:
//     frmStart.cpp         life of the window, dispatch of messages and commands, end of the session
//     frmStart_Window.cpp  controls, layout, resolution, keyboard focus
//     frmStart_Menus.cpp   the commands of the menus
// The file menu has a class of its own.
#pragma once

#include <optional>

#include "app/BookView.h"
#include "app/EntryFields.h"
#include "app/FileMenu.h"
#include "app/MainLayout.h"
#include "app/Toolbar.h"
#include "book/OpenBook.h"
#include "find/SearchBox.h"
#include "pictures/Picture.h"
#include "system/FileDrop.h"
#include "tray/TrayArea.h"
#include "window/Display.h"
#include "window/OwnWindow.h"
#include "window/ReturnedFocus.h"
#include "window/SessionHold.h"
#include "window/ToolTips.h"

namespace lindrel {

class frmStart : public OwnWindow {
  public:
    explicit frmStart(HINSTANCE instance);
    // Destroys the window, which is still there only when a fault ends the program.
    ~frmStart() override { Destroy(); }

    // Makes and shows the window. Throws SystemFault when the system cannot.
    void Show(int show);
    // Shortcuts and keyboard navigation; true when the message is done with.
    bool PreTranslate(MSG& message);

    OpenBook& OpenedBook() { return open_; }
    BookView& View() { return view_; }
    SaveAnswer OfferToSave(SaveQuestion question) { return file_menu_.OfferToSave(question); }
    // In the menu bar.
    void EnableCommand(int id, bool enabled);

  private:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    LRESULT OnControlMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void OnCommand(int id, int event);
    LRESULT OnNotify(const NMHDR& header);
    void OnActivate(WPARAM state);
    bool OnQueryEndSession();
    void OnEndSession(bool ending);
    void OnBookDropped();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();

    MainFrame Frame() const;
    void CreateControls();
    void ApplyResolution();
    void OnSettingsChange();
    void ShowIcons();
    void RestoreFocus() const;

    void mnuKat_Click();
    void mnuAdd_Click();
    void mnuEdit_Click();
    void mnuFind_Click();
    void mnuMove_Click();
    void mnuDel_Click();
    void mnuSelectAll_Click();
    void mnuToDesktop_Click();
    void mnuGridLines_Click();
    void mnuTray_Click();
    void LeaveTray();
    void mnuImport_Click();
    void mnuExport_Click();
    void mnuGoto_Click();
    void mnuHelp_Click();
    void mnuGoHome_Click();
    void mnuAbout_Click();

    HINSTANCE instance_;
    HACCEL shortcuts_ = nullptr;
    bool loaded_ = false;  // Form_Load did all its work
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    WindowMetrics metrics_;
    // As the controls stand; empty when their font or pictures have changed.
    std::optional<MainFrame> laid_out_;
    Font font_;
    Picture large_icon_, small_icon_, tray_icon_;
    HWND remembered_focus_ = nullptr;
    ReturnedFocus returned_focus_;
    SessionHold session_;

    OpenBook open_;
    Toolbar toolbar_;
    ToolTips tool_tips_;
    EntryFields fields_{tool_tips_};
    BookView view_{open_, fields_};
    SearchBox search_box_{open_, tool_tips_};
    FileMenu file_menu_{open_, view_};
    FileDrop book_drop_{L".lnd"};
    lindrel::TrayArea TrayArea;
};

}  // namespace lindrel
