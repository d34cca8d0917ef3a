// Adds addresses to a category: the links of web pages, or the shortcut files of a folder. Stays open, so
// that several can be imported in a row.
#pragma once

#include <string>
#include <vector>

#include "app/frmStart.h"
#include "controls/Dialog.h"
#include "import/HtmlLinks.h"

namespace lindrel {

class frmImport : public Dialog {
  public:
    explicit frmImport(frmStart& main);

    // The folder of shortcut files; empty when its choice was cancelled.
    void chosenFolder(const std::wstring& path) { chosen_folder_ = path; }

  private:
    void Form_Load() override;
    void Form_Unload() override;
    void OnCommand(int id, int event) override;
    bool PreTranslate(const MSG& message) override;
    void from_Click() const;
    void Label2_MouseDown();
    void mnuOnline_Click() { choice_ = LinkChoice::Online; }
    void mnuAll_Click() { choice_ = LinkChoice::All; }
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    // Throw what reading throws; nothing is added then.
    void ImportHtmlLinks(const std::wstring& fileName);
    void ImportFavoritesFolder();
    void AddToChosenCategory(std::vector<NewEntry> entries);
    void ShowResult(std::size_t count) const;

    frmStart& main_;
    LinkChoice choice_ = LinkChoice::Online;
    std::wstring chosen_folder_;
    bool imported_ = false;  // the main window's list may be out of date
};

}  // namespace lindrel
