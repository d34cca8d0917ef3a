#include "find/frmFind.h"

#include <cwchar>
#include <utility>

#include "edit/DeleteQuestions.h"
#include "find/CheckedHits.h"
#include "system/Clipboard.h"
#include "system/Shell.h"
#include "text/BookText.h"

namespace lindrel {

namespace {

constexpr wchar_t kEndingHint[] = L"pl.: com, hu, gov";
constexpr int kColumnOfNames = 0;

LOGFONTW FixedPitchFont(UINT dpi) {
    LOGFONTW font = MessageFont(dpi);
    font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    std::wcscpy(font.lfFaceName, L"Courier New");
    return font;
}

}  // namespace

frmFind::frmFind(OpenBook& open) : Dialog(IDD_frmFind), open_(open) {}

void frmFind::Form_Load() {
    LoadList();
    Get<TextBox>(ID_frmFind_txtTag).SetHint(kEndingHint);
    SetToolTip(ID_frmFind_txtTag, kEndingHint);
    anchors_.Remember(Handle(), {{ID_frmFind_txtWhat, Growth::Stretches, Growth::Stays},
                                 {ID_frmFind_cmdFind, Growth::Moves, Growth::Stays},
                                 {ID_frmFind_ListView, Growth::Stretches, Growth::Stretches},
                                 {ID_frmFind_lblURL, Growth::Stretches, Growth::Moves},
                                 {ID_frmFind_Command2, Growth::Stays, Growth::Moves},
                                 {ID_frmFind_Command3, Growth::Stays, Growth::Moves},
                                 {ID_frmFind_cmdDel, Growth::Moves, Growth::Moves}});
    // Opens larger than its smallest size, to show some hits.
    RECT bounds{};
    GetWindowRect(Handle(), &bounds);
    SetWindowPos(Handle(), nullptr, 0, 0, (bounds.right - bounds.left) * 5 / 4,
                 (bounds.bottom - bounds.top) * 3 / 2, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmFind::LoadList() {
    ListView.Attach(Item(ID_frmFind_ListView));
    ListView.AddColumn(L"webhely neve", 2);
    ListView.AddColumn(L"kategória", 1);
    ListView.ItemClick = [this] { ListView_Click(); };
    ListView.DblClick = [this] { ListView_DblClick(); };
    ListView.Copy = [this] { ListView_Copy(); };
    ListView.ItemCheck = [this](int row) { ListView_ItemCheck(row); };
}

void frmFind::ApplyResolution(UINT dpi) {
    // A resizable frame shows an icon.
    Picture icon(GetModuleHandleW(nullptr), IDI_frmStart, GetSystemMetricsForDpi(SM_CXSMICON, dpi));
    SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon.Handle()));
    icon_ = std::move(icon);
    Font font(FixedPitchFont(dpi));
    SendMessageW(Item(ID_frmFind_lblURL), WM_SETFONT, reinterpret_cast<WPARAM>(font.Handle()), TRUE);
    url_font_ = std::move(font);
    ListView.ApplyResolution(dpi);
    Form_Resize();
}

bool frmFind::OnMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT&) {
    switch (message) {
        case WM_SIZE:
            Form_Resize();
            return false;
        case WM_GETMINMAXINFO:
            anchors_.LimitSize(*reinterpret_cast<MINMAXINFO*>(lparam));
            return true;
        case WM_DPICHANGED:
            // The dialog manager scales window and controls after this, and ApplyResolution() corrects them.
            anchors_.ChangeResolution(LOWORD(wparam));
            return false;
        default:
            return false;
    }
}

void frmFind::OnCommand(int id, int event) {
    if (id == ID_frmFind_txtWhat && event == EN_SETFOCUS) txtWhat_GotFocus();
    if (id == ID_frmFind_cmdFind) cmdFind_Click();  // the default button, so Enter presses it too
    if (id == ID_frmFind_Command2) Command2_Click();
    if (id == ID_frmFind_Command3) Command3_Click();
    if (id == ID_frmFind_cmdDel) cmdDel_Click();
    if (id == IDCANCEL) Unload();
}

LRESULT frmFind::OnNotify(const NMHDR& header) {
    return header.hwndFrom == ListView.Handle() ? ListView.Notify(header) : 0;
}

bool frmFind::PreTranslate(const MSG& message) {
    // Before the keys become characters, which the list would search for.
    return message.message == WM_KEYDOWN && message.hwnd == ListView.Handle() &&
           ListView_KeyDown(message.wParam);
}

bool frmFind::ListView_KeyDown(WPARAM key) {
    switch (key) {
        case VK_MULTIPLY:
        case VK_ADD:
            Command2_Click();
            return true;
        case VK_SUBTRACT:
            Command3_Click();
            return true;
        case VK_DELETE:
            DeleteSelectedHit();
            return true;
        default:
            return false;
    }
}

void frmFind::cmdFind_Click() {
    hits_ = FindEntries(open_.TheBook, Text(ID_frmFind_txtWhat), Text(ID_frmFind_txtTag));
    ListView.SetRows(static_cast<int>(hits_.Items.size()), [this](int row, int column) {
        const Hit& hit = HitIn(row);
        return FromBookText(column == kColumnOfNames ? hit.Entry.SiteName
                                                     : open_.TheBook.CategoryNames(hit.Category));
    });
    ListView.SetEmptyText(L"Nincs találat.");
    Get<Control>(ID_frmFind_lblSum_1).SetText(std::to_wstring(ListView.Count()));
    // The hit whose address was shown is no longer selected.
    ShowAddress(L"");
    CheckedHits = 0;
}

void frmFind::ShowAddress(const std::wstring& address) {
    Get<Control>(ID_frmFind_lblURL).SetText(address);
    SetToolTip(ID_frmFind_lblURL, address);
}

void frmFind::ListView_Click() {
    if (const Hit* const hit = SelectedHit()) ShowAddress(FromBookText(hit->Entry.URL));
}

void frmFind::ListView_DblClick() const {
    if (const Hit* const hit = SelectedHit()) OpenAddress(Handle(), FromBookText(hit->Entry.URL));
}

void frmFind::ListView_Copy() const {
    if (const Hit* const hit = SelectedHit()) SetClipboardText(Handle(), FromBookText(hit->Entry.URL));
}

void frmFind::SetAllChecks(bool value) {
    ListView.SetAllChecked(value);
    CheckedHits = value ? ListView.Count() : 0;
}

void frmFind::DeleteSelectedHit() {
    const Hit* const hit = SelectedHit();
    if (hit != nullptr && MayDeleteSelected(Handle())) DeleteFromBook({hit->Index});
}

void frmFind::cmdDel_Click() {
    if (CheckedHits != 0 && MayDeleteChecked(Handle(), CheckedHits)) DeleteFromBook(CheckedIndices());
}

void frmFind::DeleteFromBook(const std::vector<int>& indices) {
    open_.TheBook.DeleteEntries(indices);
    open_.Modified = true;
    EntryDeleted = true;
    const int focused = ListView.Focused();
    cmdFind_Click();
    ListView.Focus(focused);
}

std::vector<int> frmFind::CheckedIndices() const {
    std::vector<int> indices;
    for (int row = 1; row <= ListView.Count(); ++row)
        if (ListView.IsChecked(row)) indices.push_back(HitIn(row).Index);
    return indices;
}

// If no hit was checked or deleted, the check marks of the book stay as they were.
void frmFind::Form_Unload() {
    if (EntryDeleted || CheckedHits >= 1) CheckOnly(open_.TheBook, CheckedIndices(), open_.CurrentCategory);
}

}  // namespace lindrel
