// The search box, the button that opens the shown address, and the find dialog.

#include <new>

#include "app/frmStart.h"
#include "controls/MsgBox.h"
#include "controls/PendingFault.h"
#include "controls/Shell.h"
#include "find/EntrySearch.h"
#include "find/WebServices.h"
#include "find/frmFind.h"

namespace lindrel {

void frmStart::LoadSearchFrame() {
    for (const WebService& service : kWebServices) cmbFinders.Add(service.Name);
    cmbFinders.Select(0);
    tool_tips_.Set(handle_, cmbFinders.Handle(), L"keress az interneten");
    tool_tips_.Set(handle_, txtFind.Handle(), L"a keresett szó");
    tool_tips_.Set(handle_, Image1.Handle(), L"Keresés");
    tool_tips_.Set(handle_, picGo.Handle(), L"Ugorj a web oldalra");
    if (!SetWindowSubclass(txtFind.Handle(), &frmStart::FindSubclass, 0, reinterpret_cast<DWORD_PTR>(this)))
        throw std::bad_alloc();
}

void frmStart::Image1_Click() {
    constexpr std::size_t kShortestText = 2;
    const std::wstring text = txtFind.Text();
    if (text.size() < kShortestText) return;
    if (cmbFinders.Selected() > 0)
        SearchTheWeb(text);
    else
        SearchTheBook(text);
}

void frmStart::SearchTheWeb(const std::wstring& text) {
    // What the shell answers shows by itself: the browser opens or not.
    static_cast<void>(OpenAddress(ServiceAddress(cmbFinders.Selected(), text)));
    cmbFinders.Select(0);
}

void frmStart::SearchTheBook(const std::wstring& text) {
    const int category = SelectedCategory();
    if (TheBook.CategoryCounts(category) == 0) return;
    FindInCategory(TheBook, text, category, FindPosition);
    if (FindPosition == 0)
        MsgBox(handle_, L"Nem találtam többet");
    else
        SelectRow(FindPosition);  // the focus stays here, so that Enter goes on to the next
}

void frmStart::picGo_Click() {
    if (!txtURL.IsEmpty()) static_cast<void>(OpenAddress(txtURL.Text()));
}

void frmStart::txtFind_KeyPress(wchar_t key) {
    constexpr wchar_t kEnter = 13;
    if (key == kEnter) Image1_Click();
}

// A search that goes on after a tab change starts at the old place (intended).
void frmStart::txtFind_Change() {
    FindPosition = 0;
}

void frmStart::txtFind_GotFocus() const {
    txtFind.SelectAll();
}

LRESULT CALLBACK frmStart::FindSubclass(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                                        DWORD_PTR data) {
    auto* const form = reinterpret_cast<frmStart*>(data);
    if (message == WM_NCDESTROY) static_cast<void>(RemoveWindowSubclass(window, &frmStart::FindSubclass, id));
    if (message == WM_CHAR)
        Guarded<int>(0, [&] {
            form->txtFind_KeyPress(static_cast<wchar_t>(first));
            return 0;
        });
    const LRESULT result = DefSubclassProc(window, message, first, second);
    // The keyboard navigation of the window must not take Enter for itself.
    const auto* const asked = reinterpret_cast<const MSG*>(second);
    if (message == WM_GETDLGCODE && asked != nullptr && asked->wParam == VK_RETURN)
        return result | DLGC_WANTMESSAGE;
    return result;
}

void frmStart::mnuFind_Click() {
    // Category 12 is not looked at (intended): with entries only there the command refuses.
    if (TheBook.CategoryStarts(kCategories) == 1) {
        MsgBox(handle_, L"Az adatbázisban még nincsenek címek");
        return;
    }
    SaveCheckMarks(SelectedCategory());
    frmFind(*this).ShowModal(handle_);
    FillAddressList(SelectedCategory());
    RestoreCheckMarks(SelectedCategory());
}

}  // namespace lindrel
