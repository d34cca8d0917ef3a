// The main window. It owns the open book and shows it: the categories as tabs, the entries of the shown one
// in a list with check boxes. Its commands stand in files of their own:
//     frmStart.cpp           life of the window, the empty book, dispatch of commands
//     frmStart_Window.cpp    making the controls, layout, resolution, keyboard focus
//     frmStart_File.cpp      the file menu
//     frmStart_List.cpp      tabs, list, check marks
//     frmStart_Toolbar.cpp   the toolbar and all pictures
//     frmStart_Commands.cpp  stripes in the list, the page of the shown entry, tray mode
//     frmStart_Edit.cpp      adding, editing, moving, deleting, renaming
//     frmStart_Export.cpp    export, shortcut on the desktop
//     frmStart_Import.cpp    import
//     frmStart_Help.cpp      help, home page, about box
//     frmStart_Search.cpp    search box, opening an address, the find dialog
#pragma once

#include <cstdint>
#include <string>

#include "app/MainLayout.h"
#include "book/Book.h"
#include "controls/CheckListView.h"
#include "controls/CommonDialog.h"
#include "controls/Control.h"
#include "controls/Display.h"
#include "controls/Picture.h"
#include "controls/PictureButton.h"
#include "controls/ReturnedFocus.h"
#include "controls/ToolTips.h"
#include "controls/Windows.h"
#include "edit/CheckedRuns.h"
#include "tray/TrayArea.h"

namespace lindrel {

// What the add and edit dialogs leave in ResultTag when they have stored something.
inline constexpr wchar_t kStored[] = L"init";

// The two titles of the question whether to save; their spellings differ (intended).
enum class SaveQuestion { Command, Closing };

class frmStart {
  public:
    explicit frmStart(HINSTANCE instance);
    ~frmStart();
    frmStart(const frmStart&) = delete;
    frmStart& operator=(const frmStart&) = delete;

    // Makes and shows the window. Throws std::bad_alloc when the system cannot.
    void Open(int show);
    HWND Handle() const { return handle_; }
    // The form of a main window's handle.
    static frmStart* FromWindow(HWND window);
    // Shortcuts and keyboard navigation; true when the message is done with.
    bool PreTranslate(MSG& message);

    // State that commands and dialogs read and change.
    Book TheBook;
    std::wstring OpenedFile;           // full path; empty for a book that was never saved
    bool Modified = false;             // unsaved changes exist
    std::wstring ResultTag;            // "init": the add or edit dialog has stored something
    std::uint8_t CurrentCategory = 1;  // whose entries the list shows, 1..12
    std::int16_t FindPosition = 0;     // 0-based place where the next search in the category starts
    CommonDialog CommonDialog1;

    // Controls.
    Control Toolbar;
    TabStrip TabStrip1;
    CheckListView ListURLs;
    Control lblSiteName, lblURL, FrameSearch;
    PictureButton picGo, Image1;
    TextBox txtSite, txtURL, txtFind;
    ComboBox cmbFinders;
    StatusBar StatusBar1;
    lindrel::TrayArea TrayArea;

    // Book and display. Categories are numbered 1..12.
    void ResetBook();
    void UpdateTabCaptions();
    // Shows the entries of a category, none checked and none selected, and empties the text fields.
    void FillAddressList(int category);
    // Remembers the check marks of the list now shown under a category, and puts them back after a fill.
    void SaveCheckMarks(int category);
    void RestoreCheckMarks(int category);
    void SetAllChecks(bool value);
    void ShowCheckedCount();
    // Runs of the checked rows, when the list shows the category.
    std::vector<RowRun> CheckedRunsOf(int category) const;
    // Selects a row of the list and scrolls to it; nothing for a position that the list does not have.
    void SelectRow(int position);
    // Category of the selected tab, 1..12.
    int SelectedCategory() const { return TabStrip1.Selected(); }
    void SetTitle(const std::wstring& title);
    void EnableCommand(int id, bool enabled);

    // The save question and, on Yes, the save step.
    enum class SaveAnswer { Go, Cancelled, SaveFailed };
    SaveAnswer OfferToSave(SaveQuestion question, bool* saved = nullptr);
    // Writes the book, clears Modified and tells the user. On failure tells why, changes nothing and returns
    // false.
    bool SaveBook(const std::wstring& path);
    // Reads a book, sets the title and clears Modified. On failure tells why, changes nothing and returns
    // false.
    bool LoadBook(const std::wstring& path);

    // Commands.
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuClose_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuExit_Click();
    void mnuSelectAll_Click();
    void mnuKat_Click();
    void mnuAdd_Click();
    void mnuEdit_Click();
    void mnuMove_Click();
    void mnuDel_Click();
    void mnuImport_Click();
    void mnuGridLines_Click();
    void mnuTray_Click();
    void mnuGoto_Click();
    void mnuExport_Click();
    void mnuToDesktop_Click();
    void mnuHelp_Click();
    void mnuGoHome_Click();
    void mnuAbout_Click();
    void mnuFind_Click();
    // Opens the address below the list; the menu's "Ugorj az oldalra" too.
    void picGo_Click();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    LRESULT Handle(UINT message, WPARAM first, LPARAM second);
    void OnCommand(int id, int event);
    void OnDrawItem(const DRAWITEMSTRUCT& item) const;
    LRESULT OnNotify(const NMHDR& header);

    // Life of the window.
    void Form_Load();
    void Form_Resize();
    bool Form_QueryUnload();  // false: the window stays
    void Form_Unload();

    // Making and placing the controls.
    void CreateControls();
    HWND CreateControl(const wchar_t* window_class, const wchar_t* text, DWORD style, int id,
                       DWORD extended_style = 0);
    void ApplyResolution();
    void PlaceControls(const MainLayout& places);
    void SizeStatusPanels();
    void OnMinMaxInfo(MINMAXINFO& info) const;
    void RememberFocus();
    void RestoreFocus();

    // File commands.
    bool ChooseBookFile(bool open);
    void ResetAfterOffer();
    void OpenChosenBook();
    void WarnOfHeaderLookalikes();

    // Tabs and list.
    void TabStrip1_Click();
    void SelectTab(int category);
    void ListURLs_ItemClick();
    void ListURLs_ItemCheck(int position);
    void ListURLs_ColumnClick();
    void ShowEntry(int index);

    // Toolbar and pictures.
    void CreateToolbar();
    void ShowPictures();
    void UpdateToolbar();
    void Toolbar_ButtonClick(int Button);  // 1-based
    void Toolbar_Notify(const NMHDR& header);
    void Toolbar_ButtonDropDown(int Button);

    // Tray mode.
    void TrayArea_MouseDown(std::int16_t& Button);
    void LeaveTray();

    // Editing.
    void DeleteCheckedEntries();

    // The search box: a service on the internet when one is chosen, else the shown category step by step.
    void LoadSearchFrame();
    void Image1_Click();
    void SearchTheWeb(const std::wstring& text);
    void SearchTheBook(const std::wstring& text);
    void txtFind_KeyPress(wchar_t key);
    void txtFind_Change();
    void txtFind_GotFocus() const;
    static LRESULT CALLBACK FindSubclass(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                         DWORD_PTR data);

    // The fields below the list.
    static LRESULT CALLBACK UrlSubclass(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                        DWORD_PTR data);
    void txtURL_DblClick();
    void txtURL_KeyPress(wchar_t key);

    HINSTANCE instance_;
    HWND handle_ = nullptr;
    HACCEL shortcuts_ = nullptr;
    bool loaded_ = false;  // Form_Load did all its work
    HWND remembered_focus_ = nullptr;
    ReturnedFocus returned_focus_;
    UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
    Font font_;
    ToolTips tool_tips_;
    Picture large_icon_, small_icon_, tray_icon_;
    PictureList ImageList1, disabled_pictures_;  // of the toolbar
};

}  // namespace lindrel
