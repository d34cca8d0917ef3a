// Exports the checked entries of chosen categories as a web page, a text list or shortcut files.
#pragma once

#include <string>
#include <vector>

#include "app/frmStart.h"
#include "controls/Dialog.h"
#include "export/HtmlPage.h"

namespace lindrel {

class frmExport : public Dialog {
  public:
    explicit frmExport(frmStart& main);
    ~frmExport() override;

    // The folder for shortcut files; empty when its choice was cancelled.
    void FavorithPath(const std::wstring& vData) { favorPath = vData; }

  private:
    // In the order of cmbType.
    enum Kind { WebPage, TextFile, Favorites };

    void Form_Load() override;
    void OnCommand(int id, int event) override;
    void cmbType_Click();
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(); }
    void cmdBrowse_Click();
    void cmbTheme_Change(const std::wstring& theme) const;
    void cmbTheme_LostFocus() const;

    Kind ChosenKind() const;
    void FillThemes() const;
    void SetPageOptionsEnabled(bool disable) const;

    // The steps of the export button.
    bool ExportToFile(Kind kind);
    bool ExportToFavorites();
    bool ChooseFile(std::wstring& path);
    void DropCategoriesNotChosen();
    void WriteHtmlPage(const std::wstring& fileName);
    void WriteTextList(const std::wstring& fileName);
    void saveTo_fav();
    void ReadTheme(std::wstring& title, std::string& background, std::string& text);

    frmStart& main_;
    std::wstring favorPath;
    std::vector<std::wstring> ExportKinds;
    Fragments ThemeParts;
    bool ThemeApplied = false;
};

}  // namespace lindrel
