// The dialog that adds addresses to a category: the links of a web page, or the shortcut files of a folder.
// It stays open, so that several can be imported in a row.
#pragma once

#include <string>
#include <vector>

#include "book/OpenBook.h"
#include "import/HtmlLinks.h"
#include "window/Dialog.h"

namespace lindrel {

class frmImport : public Dialog {
  public:
    explicit frmImport(OpenBook& open);

    // Whether anything was imported, so that a list of the book's entries may be out of date.
    bool Imported() const { return imported_; }

  private:
    void Form_Load() override;
    void OnCommand(int id, int event) override;
    bool PreTranslate(const MSG& message) override;
    void from_Click() const;
    void Label2_MouseDown();
    void mnuOnline_Click() { choice_ = LinkChoice::Online; }
    void mnuAll_Click() { choice_ = LinkChoice::All; }
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }

    // These throw what reading the page or the folder throws; nothing is added then.
    void ImportHtmlLinks(const std::wstring& fileName);
    void ImportFavoritesFolder();
    // False if the book cannot take them; the user has been told.
    bool AddToChosenCategory(const std::vector<NewEntry>& entries);
    void ShowResult(std::size_t count) const;

    OpenBook& open_;
    LinkChoice choice_ = LinkChoice::Online;
    bool imported_ = false;
};

}  // namespace lindrel
