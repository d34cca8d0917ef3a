// The program's main window, driven by the messages that a user's hands send it. Each action returns the
// milliseconds until what it brought about is painted, and throws std::runtime_error when that is not what it
// should be.
#pragma once

#include <shlobj.h>
#include <shobjidl.h>

#include <functional>
#include <memory>
#include <string>

#include "bench/window/Timing.h"
#include "resources/resource.h"
#include "tests/window/support/ControlsOnScreen.h"
#include "tests/window/support/Program.h"

namespace lindrel::bench {

class MainWindow {
  public:
    // Starts the program; it ends with this object.
    MainWindow() {
        OnUi([this] { Finish(program_.Main()); });
    }

    testing::ListOnScreen List() const { return program_.List(); }

    // Runs code on the program's thread, where everything is measured.
    void OnUi(const std::function<void()>& code) const {
        program_.OnUi([&](frmStart&) { code(); });
    }

    // Drops a book's file on the window. The list must show `rows` then, and the book have `total` entries.
    double Open(const std::wstring& path, int rows, int total) const {
        const double time = program_.Ask<double>([&](frmStart&) { return Drop(path); });
        Demand(TextOf(program_.Main()) == L"Lindrel -" + path.substr(path.find_last_of(L'\\') + 1),
               "the title");
        ExpectRows(rows);
        const std::wstring shown =
            L"megjelenítve (" + std::to_wstring(rows) + L" / " + std::to_wstring(total) + L")";
        Demand(testing::PanelText(program_.Control(ID_frmStart_StatusBar1), 2) == shown, "the status bar");
        return time;
    }
    // What Ctrl+Tab sends, and with Shift.
    double NextTab(int rows) const { return ChangeTab(true, rows); }
    double PreviousTab(int rows) const { return ChangeTab(false, rows); }
    // Searches the category for a name, from its beginning, by the search box; `row` has it.
    double Search(const std::wstring& name, int row) const {
        SendMessageW(program_.Control(ID_frmStart_txtFind), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(name.c_str()));
        const double time = TimeOfCommand(program_.Main(), ID_frmStart_Image1, BN_CLICKED);
        Demand(List().Selected() == row, "the row that is found");
        const int top = ListView_GetTopIndex(List().Handle());
        Demand(row > top && row <= top + ListView_GetCountPerPage(List().Handle()), "the row in view");
        return time;
    }
    // Finds all entries of the book by the find dialog, which is opened and closed for it.
    double FindAll(int total) const {
        program_.Choose(ID_mnuFind);
        const testing::DialogOnScreen dialog = program_.Dialog(L"Keresés");
        const auto find = [&dialog, this](const wchar_t* what, int hits) {
            dialog.SetText(ID_frmFind_txtWhat, what);
            const double time = TimeOfCommand(dialog.Handle(), ID_frmFind_cmdFind, BN_CLICKED);
            Demand(ListView_GetItemCount(dialog.Control(ID_frmFind_ListView)) == hits, "the hits");
            return time;
        };
        find(L"no such name", 0);
        const double time = find(L"", total);
        dialog.Cancel();
        program_.Settle();
        return time;
    }

  private:
    struct Releaser {
        void operator()(IUnknown* object) const { object->Release(); }
    };
    template <typename Interface>
    using Com = std::unique_ptr<Interface, Releaser>;

    // A file as the shell drags it.
    static Com<IDataObject> Dragged(const std::wstring& path) {
        IShellItem* item = nullptr;
        Demand(SUCCEEDED(SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(&item))),
               "the file");
        const Com<IShellItem> held(item);
        IDataObject* data = nullptr;
        Demand(SUCCEEDED(item->BindToHandler(nullptr, BHID_DataObject, IID_PPV_ARGS(&data))),
               "the file's data");
        return Com<IDataObject>(data);
    }
    double Drop(const std::wstring& path) const {
        auto* const target = static_cast<IDropTarget*>(GetPropW(program_.Main(), L"OleDropTargetInterface"));
        Demand(target != nullptr, "the target of drops");
        const Com<IDataObject> data = Dragged(path);
        DWORD over = DROPEFFECT_COPY;
        Demand(target->DragEnter(data.get(), MK_LBUTTON, {}, &over) == S_OK && over == DROPEFFECT_COPY,
               "the drag of the book");
        return TimeUntilPainted(program_.Main(), [&] {
            DWORD effect = DROPEFFECT_COPY;
            Demand(target->Drop(data.get(), 0, {}, &effect) == S_OK && effect == DROPEFFECT_COPY,
                   "the drop of the book");
        });
    }

    double TimeOfCommand(HWND window, int id, int event) const {
        return program_.Ask<double>([&](frmStart&) {
            return TimeUntilPainted(window, [&] {
                SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, event),
                             reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
            });
        });
    }
    double ChangeTab(bool forward, int rows) const {
        constexpr int kByShortcut = 1;
        const HWND tabs = program_.Control(ID_frmStart_TabStrip1);
        const int before = TabCtrl_GetCurSel(tabs);
        const double time =
            TimeOfCommand(program_.Main(), forward ? ID_NextTab : ID_PreviousTab, kByShortcut);
        Demand(TabCtrl_GetCurSel(tabs) == before + (forward ? 1 : -1), "the tab");
        ExpectRows(rows);
        return time;
    }
    void ExpectRows(int rows) const {
        Demand(List().Count() == rows, "the rows of the list");
        Demand(ListView_GetTopIndex(List().Handle()) == 0, "the first row in view");
    }

    testing::Program program_;
};

}  // namespace lindrel::bench
