// The dialog in which the user picks a folder: a tree, a button that takes the selected folder, and one that
// cancels. Each use has a template of its own.
#pragma once

#include <string>
#include <utility>

#include "system/DirList.h"
#include "window/Dialog.h"

namespace lindrel {

class FolderDialog : public Dialog {
  public:
    // The controls in the template.
    struct Ids {
        int Dir1;
        int cmdOk;
        int cmdCancel;
    };
    // The tree opens at startDir.
    FolderDialog(int template_id, const Ids& ids, std::wstring startDir)
        : Dialog(template_id), ids_(ids), start_folder_(std::move(startDir)) {}

    // Full path of the folder that was taken; empty if the dialog was cancelled.
    const std::wstring& ChosenFolder() const { return chosen_folder_; }

  private:
    void Form_Load() override {
        Dir1.Attach(Item(ids_.Dir1));
        Dir1.SetPath(start_folder_);
    }
    LRESULT OnNotify(const NMHDR& header) override {
        return header.hwndFrom == Dir1.Handle() ? Dir1.Notify(header) : 0;
    }
    void OnCommand(int id, int) override {
        if (id == ids_.cmdOk) cmdOk_Click();
        if (id == ids_.cmdCancel || id == IDCANCEL) cmdCancel_Click();
    }
    void cmdOk_Click() {
        chosen_folder_ = Dir1.Path();
        Unload();
    }
    void cmdCancel_Click() { Unload(); }

    Ids ids_;
    DirList Dir1;
    std::wstring start_folder_;
    std::wstring chosen_folder_;
};

}  // namespace lindrel
