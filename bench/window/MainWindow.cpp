#include "bench/window/MainWindow.h"

#include <shlobj.h>
#include <shobjidl.h>

#include <memory>

#include "bench/window/UiThread.h"
#include "resources/resource.h"
#include "window/Control.h"

namespace lindrel::bench {

namespace {

constexpr std::size_t kLongestText = 260;

BOOL CALLBACK TakeMainWindow(HWND window, LPARAM found) {
    wchar_t name[kLongestText] = L"";
    if (GetClassNameW(window, name, kLongestText) == 0 || std::wstring(name) != L"frmStart") return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Com = std::unique_ptr<Interface, Releaser>;

// A file as the shell drags it.
Com<IDataObject> Dragged(const std::wstring& path) {
    IShellItem* item = nullptr;
    Demand(SUCCEEDED(SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(&item))), "the file");
    const Com<IShellItem> held(item);
    IDataObject* data = nullptr;
    Demand(SUCCEEDED(item->BindToHandler(nullptr, BHID_DataObject, IID_PPV_ARGS(&data))), "the file's data");
    return Com<IDataObject>(data);
}

void Command(HWND window, int id, int event) {
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, event), reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
}

std::wstring PanelText(HWND bar, int panel) {
    wchar_t text[kLongestText] = L"";
    const LRESULT length = SendMessageW(bar, SB_GETTEXTLENGTHW, static_cast<WPARAM>(panel - 1), 0);
    Demand(LOWORD(length) < kLongestText, "the text of the status bar");
    SendMessageW(bar, SB_GETTEXTW, static_cast<WPARAM>(panel - 1), reinterpret_cast<LPARAM>(text));
    return text;
}

}  // namespace

MainWindow::MainWindow() {
    // The result only says whether the enumeration was cut short.
    static_cast<void>(
        EnumThreadWindows(GetCurrentThreadId(), &TakeMainWindow, reinterpret_cast<LPARAM>(&window_)));
    Demand(window_ != nullptr && IsWindowVisible(window_), "the main window");
}

HWND MainWindow::List() const {
    return GetDlgItem(window_, ID_frmStart_ListURLs);
}

std::wstring MainWindow::Cell(int row, int column) const {
    wchar_t text[kLongestText] = L"";
    ListView_GetItemText(List(), row - 1, column, text, kLongestText);
    return text;
}

void MainWindow::ExpectRows(int rows) const {
    Demand(ListView_GetItemCount(List()) == rows, "the rows of the list");
    Demand(ListView_GetTopIndex(List()) == 0, "the list's place");
}

double MainWindow::Open(const std::wstring& path, int rows, int total) const {
    auto* const target = static_cast<IDropTarget*>(GetPropW(window_, L"OleDropTargetInterface"));
    Demand(target != nullptr, "the target of drops");
    const Com<IDataObject> data = Dragged(path);
    DWORD over = DROPEFFECT_COPY;
    Demand(target->DragEnter(data.get(), MK_LBUTTON, {}, &over) == S_OK && over == DROPEFFECT_COPY,
           "the drag of the book");
    const double time = TimeUntilPainted(window_, [&] {
        DWORD effect = DROPEFFECT_COPY;
        Demand(target->Drop(data.get(), 0, {}, &effect) == S_OK && effect == DROPEFFECT_COPY,
               "the drop of the book");
    });
    Demand(TextOf(window_) == L"Lindrel -" + path.substr(path.find_last_of(L'\\') + 1), "the title");
    ExpectRows(rows);
    const std::wstring shown =
        L"megjelenítve (" + std::to_wstring(rows) + L" / " + std::to_wstring(total) + L")";
    Demand(PanelText(GetDlgItem(window_, ID_frmStart_StatusBar1), 2) == shown, "the status bar");
    return time;
}

double MainWindow::ChangeTab(bool forward, int rows) const {
    constexpr int kByShortcut = 1;
    const HWND tabs = GetDlgItem(window_, ID_frmStart_TabStrip1);
    const int before = TabCtrl_GetCurSel(tabs);
    const double time = TimeUntilPainted(
        window_, [&] { Command(window_, forward ? ID_NextTab : ID_PreviousTab, kByShortcut); });
    Demand(TabCtrl_GetCurSel(tabs) == before + (forward ? 1 : -1), "the tab");
    ExpectRows(rows);
    return time;
}

double MainWindow::Search(const std::wstring& name, int row) const {
    SetWindowTextW(GetDlgItem(window_, ID_frmStart_txtFind), name.c_str());
    const double time =
        TimeUntilPainted(window_, [this] { Command(window_, ID_frmStart_Image1, BN_CLICKED); });
    Demand(ListView_GetNextItem(List(), -1, LVNI_SELECTED) == row - 1, "the row that is found");
    const int top = ListView_GetTopIndex(List());
    Demand(row > top && row <= top + ListView_GetCountPerPage(List()), "the list's place after the search");
    return time;
}

double MainWindow::FindAll(int total) const {
    double time = 0;
    const auto search = [&] {
        const HWND dialog = GetLastActivePopup(window_);
        Demand(dialog != window_, "the find dialog");
        const auto find = [dialog](const wchar_t* what, int hits) {
            SetDlgItemTextW(dialog, ID_frmFind_txtWhat, what);
            const double taken =
                TimeUntilPainted(dialog, [&] { Command(dialog, ID_frmFind_cmdFind, BN_CLICKED); });
            Demand(ListView_GetItemCount(GetDlgItem(dialog, ID_frmFind_ListView)) == hits, "the hits");
            return taken;
        };
        find(L"no such name", 0);
        time = find(L"", total);
        Command(dialog, IDCANCEL, BN_CLICKED);
    };
    RunInside([this] { Command(window_, ID_mnuFind, 0); }, search);
    return time;
}

}  // namespace lindrel::bench
