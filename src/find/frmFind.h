// Finds entries of all categories by their site names, narrowed to an ending of their addresses. The hits can
// be opened, deleted and checked; on closing, the checked hits become the check marks of the list.
#pragma once

#include <vector>

#include "book/OpenBook.h"
#include "find/EntrySearch.h"
#include "list/CheckListView.h"
#include "pictures/Picture.h"
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

    void Form_Resize();
    void txtWhat_GotFocus() const;
    void cmdFind_Click();
    void Command2_Click();
    void Command3_Click();
    void cmdDel_Click();
    void ListView_Click();
    void ListView_DblClick() const;
    void ListView_Copy() const;
    void ListView_ItemCheck(int row);
    // True when the key is one of the list's own.
    bool ListView_KeyDown(WPARAM key);

    void LoadList();
    // The address below the list, in full as its tip, since a long one is cut.
    void ShowAddress(const std::wstring& address);
    void SetAllChecks(bool value);
    void DeleteSelectedHit();
    // Removes the entries at these ascending indices and searches again, which numbers the hits anew.
    void DeleteFromBook(const std::vector<int>& indices);
    // Indices of the checked hits, in list order.
    std::vector<int> CheckedIndices() const;
    const Hit* SelectedHit() const;

    OpenBook& open_;
    CheckListView ListView;
    Anchors anchors_;
    Font url_font_;
    Picture icon_;
    Hits hits_;  // row r shows Items[r - 1]
    int CheckedHits = 0;
    bool EntryDeleted = false;
};

}  // namespace lindrel
