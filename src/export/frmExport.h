// Exports the checked entries of chosen categories as a web page, a text list or shortcut files.
#pragma once

#include <optional>
#include <string>

#include "book/OpenBook.h"
#include "export/HtmlPage.h"
#include "window/Dialog.h"

namespace lindrel {

class frmExport : public Dialog {
  public:
    explicit frmExport(OpenBook& open);

  private:
    // In the order of cmbType.
    enum Kind { WebPage, TextFile, Favorites };

    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmbType_Click();
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }
    void cmdBrowse_Click();
    void OnTheme(int event) const;
    void cmbTheme_Change(const std::wstring& theme) const;
    void cmbTheme_LostFocus() const;

    Kind ChosenKind() const;
    void FillThemes() const;
    void SetPageOptionsEnabled(bool disable) const;

    // The steps of the export button. A bool is false if the user has called the export off. Faults of
    // choosing and writing pass through.
    bool Export(Kind kind);
    bool ExportToFile(Kind kind);
    bool ExportToFavorites();
    std::optional<std::wstring> ChooseFile(Kind kind) const;
    void DropCategoriesNotChosen();
    void WriteHtmlPage(const std::wstring& fileName) const;
    void WriteTextList(const std::wstring& fileName) const;
    // The look of the page as chosen in the dialog. Tells the user if the theme file does not exist; throws
    // if it cannot be read or has too many fields.
    PageStyle ReadTheme() const;

    OpenBook& open_;
};

}  // namespace lindrel
