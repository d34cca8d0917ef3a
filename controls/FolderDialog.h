// What the dialogs in which the user picks a folder share: the tree, and where it starts.
#pragma once

#include <string>

#include "controls/Dialog.h"
#include "controls/DirList.h"

namespace lindrel {

class FolderDialog : public Dialog {
  public:
    // The folder that the tree shows first.
    void startDir(const std::wstring& path) { start_Dir = path; }

  protected:
    // `tree_id` is the tree view of the template.
    FolderDialog(int template_id, int tree_id) : Dialog(template_id), tree_id_(tree_id) {}

    DirList Dir1;

  private:
    void Form_Load() override {
        Dir1.Attach(Item(tree_id_));
        Dir1.SetPath(start_Dir);
    }
    LRESULT OnNotify(const NMHDR& header) override {
        return header.hwndFrom == Dir1.Handle() ? Dir1.Notify(header) : 0;
    }

    int tree_id_;
    std::wstring start_Dir;
};

}  // namespace lindrel
