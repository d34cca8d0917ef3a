// The main window. It owns the open book, the parts of the window that show it, and the commands of the menus
// (those of the file menu are in FileMenu):
//     frmStart.cpp         creation and end of the window, dispatch of messages, end of the session
//     frmStart_Window.cpp  controls, layout, resolution, keyboard focus
//     frmStart_Menus.cpp   the commands of the menus
#pragma once

#include <optional>
#include <string>

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
#include "window/SessionHold.h"
#include "window/ToolTips.h"

namespace lindrel {

class frmStart : public OwnWindow {
  public:
    explicit frmStart(HINSTANCE instance) : instance_(instance) {}
    // The window still exists only if a fault ends the program.
    ~frmStart() override { Destroy(); }

    // Creates the window and shows it as a SW_ value says. Throws SystemFault, and leaves no window then.
    void Show(int show);
    // Handles shortcuts and keyboard navigation. True if the message must not be dispatched.
    bool PreTranslate(MSG& message);

    OpenBook& OpenedBook() { return open_; }
    BookView& View() { return view_; }
    bool MayClose() { return file_menu_.MayClose(); }
    // In the menu bar.
    void EnableCommand(int id, bool enabled);

    // L"init" from when the add or edit dialog has stored an entry until the list shows it; otherwise empty.
    std::wstring ResultTag;

  private:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    LRESULT OnControlMessage(UINT message, WPARAM wparam, LPARAM lparam);
    void OnCommand(int id, int event);
    LRESULT OnNotify(const NMHDR& header);
    void OnActivate(WPARAM state);
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    void OnDpiChanged(const RECT& suggested);
    void OnClose();
    bool OnQueryEndSession();
    void OnEndSession(bool ending);
    void OnBookDropped();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();

    MainFrame Frame() const;
    POINT LeastSize(const MainFrame& frame, UINT dpi) const;
    void CreateControls();
    void ApplyResolution();
    void OnSettingsChange();
    void PlaceControls(const MainLayout& layout) const;
    void ShowIcons();
    void RememberFocus();
    void RestoreFocus();

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
    void mnuGoto_Click() { fields_.picGo_Click(); }
    void mnuHelp_Click();
    void mnuGoHome_Click();
    void mnuAbout_Click();

    HINSTANCE instance_;
    HACCEL shortcuts_ = nullptr;
    bool loaded_ = false;  // Form_Load is done
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    WindowMetrics metrics_;
    // What the controls were last placed for; nullopt after their font or pictures have changed.
    std::optional<MainFrame> laid_out_;
    Font font_;
    Picture large_icon_, small_icon_, tray_icon_;
    HWND remembered_focus_ = nullptr;
    bool restoring_focus_ = false;
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
