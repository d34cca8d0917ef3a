// Finds entries of all categories by their site names and the ending of their addresses. The hits can be
// opened, deleted and checked. When the dialog is closed the checked hits become the check marks of the book.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "book/OpenBook.h"
#include "find/EntrySearch.h"
#include "list/CheckListView.h"
#include "pictures/Picture.h"
#include "resources/resource.h"
#include "window/Anchors.h"
#include "window/Dialog.h"
#include "window/Display.h"

namespace lindrel {

class frmFind : public Dialog {
  public:
    explicit frmFind(OpenBook& open);

  private:
    void Form_Load() override;
    void ApplyResolution(UINT dpi) override;
    void Form_Unload() override;
    void OnCommand(int id, int event) override;
    LRESULT OnNotify(const NMHDR& header) override;
    bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) override;
    bool PreTranslate(const MSG& message) override;

    void Form_Resize() { anchors_.Place(); }
    void txtWhat_GotFocus() const { Get<TextBox>(ID_frmFind_txtWhat).SelectAll(); }
    void cmdFind_Click();
    void Command2_Click() { SetAllChecks(true); }
    void Command3_Click() { SetAllChecks(false); }
    void cmdDel_Click();
    void ListView_Click();
    void ListView_DblClick() const;
    void ListView_Copy() const;
    void ListView_ItemCheck(int row) { CheckedHits += ListView.IsChecked(row) ? 1 : -1; }
    // True if the list must not get the key.
    bool ListView_KeyDown(WPARAM key);

    void LoadList();
    // Shows an address below the list, and in full as a tool tip, since a long one is cut off.
    void ShowAddress(const std::wstring& address);
    void SetAllChecks(bool value);
    void DeleteSelectedHit();
    // Deletes the entries at these ascending indices and searches again, since the indices of hits change.
    void DeleteFromBook(const std::vector<int>& indices);
    // Indices of the checked hits, ascending.
    std::vector<int> CheckedIndices() const;
    const Hit& HitIn(int row) const { return hits_.Items.at(static_cast<std::size_t>(row - 1)); }
    const Hit* SelectedHit() const {
        return ListView.Selected() == 0 ? nullptr : &HitIn(ListView.Selected());
    }

    OpenBook& open_;
    CheckListView ListView;
    Anchors anchors_;
    Font url_font_;
    Picture icon_;
    Hits hits_;
    int CheckedHits = 0;
    bool EntryDeleted = false;
};

}  // namespace lindrel
