// A walk through the program at random, compared with a plain model of it after each step. The seed is
// printed; LINDREL_WALK_SEED and LINDREL_WALK_STEPS walk another way, or farther.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "resources/resource.h"
#include "tests/support/Times.h"
#include "tests/window/find/FindSession.h"
#include "tests/window/support/Text.h"
#include "tests/window/support/WindowModel.h"

namespace lindrel::testing {
namespace {

// Dice, and texts that a user might type: the same seed gives the same ones again.
class RandomTexts {
  public:
    explicit RandomTexts(std::uint32_t seed) : dice_(seed) {}

    // 0..sides - 1.
    int Roll(int sides) { return static_cast<int>(dice_() % static_cast<std::uint32_t>(sides)); }
    bool OneIn(int times) { return Roll(times) == 0; }
    template <typename Choices>
    const auto& OneOf(const Choices& choices) {
        return std::data(choices)[Roll(static_cast<int>(std::size(choices)))];
    }

    // A name that the dialogs take: with a letter, so that it is not blank, and without the prefix of a
    // header, which only a category's name may have.
    std::wstring Name() { return WithoutPrefix(Words(OneIn(60) ? 120 : 3) + (OneIn(2) ? L"n" : L"Ű")); }
    // An address with the prefix of a header could make opening the book ask something.
    std::wstring Address() {
        static const std::vector<std::wstring> hosts = SplitAtBlanks(
            L"http://www.hu.com http://wwwhu HTTP://WWW.hírek.HU https://a.hu ftp://x.gov/hu "
            L"mailto:ki@lap.hu lap.hu c:\\könyv.txt http:// http://a.hu/ő?x=1&y=\"2\"#hely");
        const std::wstring before = OneIn(4) ? Words(2) : L"";
        const std::wstring host = OneOf(hosts);
        return WithoutPrefix(before + host + (OneIn(4) ? Words(OneIn(30) ? 120 : 2) : L""));
    }
    std::wstring CategoryName() { return Words(2); }

    // Texts that the dialogs refuse: no name, too short an address, and one with a character that a book
    // cannot hold.
    std::wstring BlankName() { return Spaces(Roll(4)); }
    std::wstring ShortAddress() { return Spaces(Roll(3)) + (OneIn(2) ? L"ab" : L"") + L"  "; }
    std::wstring ForeignText() {
        const std::wstring before = L"http" + Words(2);
        return before + (OneIn(2) ? L"Ω" : L"\xD83D\xDE00") + Words(2);
    }

  private:
    static std::vector<std::wstring> SplitAtBlanks(std::wstring_view text) {
        std::vector<std::wstring> words(1);
        for (const wchar_t c : text)
            if (c == L' ')
                words.emplace_back();
            else
                words.back() += c;
        return words;
    }
    static std::wstring Spaces(int count) { return std::wstring(static_cast<std::size_t>(count), L' '); }
    static std::wstring WithoutPrefix(const std::wstring& text) {
        return text.starts_with(L'#') ? L"n" + text : text;
    }
    std::wstring Words(int most) {
        std::wstring words;
        for (int left = Roll(most + 1); left > 0; --left) {
            if (!OneIn(5)) words += L" ";
            words += Word();
        }
        if (OneIn(2) && words.starts_with(L" ")) words.erase(0, 1);
        if (OneIn(8)) words += L" ";
        return words;
    }
    std::wstring Word() {
        static const std::vector<std::wstring> words = SplitAtBlanks(
            L"árvíztűrő tükörfúrógép ŐSZ Űrhajó társa & && # #1 \"idézet\" „így” ' a x hír Hírek HÍR "
            L"időjárás Č ß € … – <b> 100% \\ / | , () \xA0 www http:// łódź %s");
        if (OneIn(40)) return std::wstring(static_cast<std::size_t>(Roll(400)), OneIn(2) ? L'ő' : L'&');
        return OneOf(words);
    }

    std::mt19937 dice_;
};

// The two dialogs for one entry; numbers are ids of controls.
struct EntryDialog {
    int Command;
    const wchar_t* Caption;
    int Name, Address, Category, Ok, Cancel;
};
constexpr EntryDialog kAddDialog = {ID_mnuAdd,          L"Új oldal hozzáadása", ID_frmAdd_txtDesc,
                                    ID_frmAdd_txtURL,   ID_frmAdd_cmbKateg,     ID_frmAdd_cmdOK,
                                    ID_frmAdd_cmdCancel};
constexpr EntryDialog kEditDialog = {ID_mnuEdit,
                                     L"Cím módosítása",
                                     ID_frmEditRec_txtDesc,
                                     ID_frmEditRec_txtURL,
                                     ID_frmEditRec_cmbKateg,
                                     ID_frmEditRec_cmdOk,
                                     ID_frmEditRec_Command1};

// A user who does at random what can be done in the program, in its real windows, and knows from the model
// what must come of it. The steps depend on the seed and the model only, so the same seed walks the same way.
class RandomUser {
  public:
    explicit RandomUser(std::uint32_t seed) : texts_(seed) {}

    // One step, after which everything must be as in the model.
    void Step() {
        struct Choice {
            int Weight;
            void (RandomUser::*Do)();
        };
        static constexpr Choice kChoices[] = {
            {20, &RandomUser::Add},       {8, &RandomUser::Edit},        {8, &RandomUser::Move},
            {5, &RandomUser::Delete},     {6, &RandomUser::Find},        {3, &RandomUser::Rename},
            {10, &RandomUser::ClickTab},  {10, &RandomUser::ClickRow},   {12, &RandomUser::ClickBoxes},
            {4, &RandomUser::PressArrow}, {5, &RandomUser::PressSpaces}, {4, &RandomUser::CheckAllOrNone},
            {1, &RandomUser::New},        {2, &RandomUser::Open},        {2, &RandomUser::Save},
            {2, &RandomUser::SaveAs},     {3, &RandomUser::ClickHeader},
        };
        int weights = 0;
        for (const Choice& choice : kChoices) weights += choice.Weight;
        int rolled = texts_.Roll(weights);
        const Choice* chosen = kChoices;
        while (rolled >= chosen->Weight) rolled -= chosen++->Weight;
        // A book of some dozen entries is large enough.
        const bool full = chosen->Do == &RandomUser::Add && model_.Total() > 50;
        (this->*(full ? &RandomUser::Delete : chosen->Do))();
        Compare();
    }
    // Saves the book in a new file and opens it again.
    void SaveAndReopen() {
        Note("save and open again");
        if (model_.SeemsEmpty()) return;
        const std::wstring path = NewFile();
        program_.Choose(ID_mnuSaveAs);
        program_.FileDialog().Accept(path);
        model_.SaveUnderNewName(path);
        ExpectSaved(path);
        Compare();
        program_.Choose(ID_mnuOpen);
        program_.FileDialog().Accept(path);
        model_.Open(path, model_.File());
        Compare();
    }
    // One a line.
    std::string LastSteps() const {
        std::string text;
        for (const std::string& step : steps_) text += step + "\n";
        return text;
    }

  private:
    void Compare() const {
        program_.Settle();
        EXPECT_TRUE(program_.NothingIsOpen());
        EXPECT_EQ(program_.State(), model_.State());
        EXPECT_EQ(program_.BookBytes(), model_.File());
        EXPECT_EQ(program_.CommandEnabled(ID_mnuToDesktop), model_.RowCount() != 0);
    }
    // To be read when something is wrong.
    void Note(const std::string& step) {
        constexpr std::size_t kRemembered = 40;
        steps_.push_back(std::to_string(++steps_made_) + ": " + step);
        if (steps_.size() > kRemembered) steps_.pop_front();
    }
    bool OneIn(int times) { return texts_.OneIn(times); }
    int RollRow() { return texts_.Roll(model_.RowCount()) + 1; }
    // Mostly one of a few, so that these have many rows.
    int RollCategory() {
        static constexpr int kFavourites[] = {1, 2, 7, 12};
        return OneIn(3) ? texts_.Roll(12) + 1 : texts_.OneOf(kFavourites);
    }
    void AnswerBox(const std::wstring& title, const std::wstring& text, int answer) const {
        const BoxOnScreen box = program_.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), text);
        box.Press(answer);
        program_.Settle();
    }

    // Tabs, rows and check marks.

    void ClickTab() {
        const int category = RollCategory();
        Note("tab " + std::to_string(category));
        if (TabIsInView(category)) {
            program_.ClickTab(category);
            return model_.ClickTab(category);
        }
        // Long names leave no room for all tabs; the keyboard reaches them.
        const bool forward = OneIn(2);
        while (model_.Shown != category) {
            program_.Run(forward ? ID_NextTab : ID_PreviousTab);
            model_.ClickTab((model_.Shown + (forward ? 0 : 10)) % 12 + 1);
        }
    }
    bool TabIsInView(int category) const {
        const HWND strip = program_.Control(ID_frmStart_TabStrip1);
        return program_.Ask<bool>([&](frmStart&) {
            RECT tab{};
            RECT room{};
            if (!TabCtrl_GetItemRect(strip, category - 1, &tab) || !GetClientRect(strip, &room)) return false;
            // The arrows that scroll the tabs cover the last ones.
            const HWND arrows = GetWindow(strip, GW_CHILD);
            if (arrows != nullptr && IsWindowVisible(arrows))
                room.right -= 2 * GetSystemMetrics(SM_CXHSCROLL);
            return tab.left >= 0 && tab.right <= room.right;
        });
    }
    void ClickRow() {
        if (model_.RowCount() == 0) return ClickTab();
        const int row = RollRow();
        Note("row " + std::to_string(row));
        program_.ClickRow(row);
        model_.ClickRow(row);
    }
    void ClickBoxes() {
        if (model_.RowCount() == 0) return ClickTab();
        for (int left = texts_.Roll(3) + 1; left > 0; --left) {
            const int row = RollRow();
            Note("box " + std::to_string(row));
            program_.ClickBox(row);
            model_.ClickBox(row);
        }
    }
    void PressInList(WPARAM key) const { program_.PressKey(program_.Control(ID_frmStart_ListURLs), key); }
    void PressSpaces() {
        if (model_.Selected == 0) return ClickRow();
        for (int left = texts_.Roll(4) + 1; left > 0; --left) {
            Note("space bar");
            PressInList(VK_SPACE);
            model_.ClickBox(model_.Selected);
        }
    }
    void PressArrow() {
        if (model_.Selected == 0) return ClickRow();
        const bool down = OneIn(2);
        Note(down ? "arrow down" : "arrow up");
        PressInList(down ? VK_DOWN : VK_UP);
        const int row = model_.Selected + (down ? 1 : -1);
        // At the ends of the list the key does nothing.
        if (row >= 1 && row <= model_.RowCount()) model_.ClickRow(row);
    }
    void ClickHeader() {
        Note("header of the list");
        program_.List().ClickHeader();
        model_.ClickHeader();
    }
    void CheckAllOrNone() {
        Note("check all or none");
        program_.Run(ID_mnuSelectAll);
        model_.CheckAllOrNone();
    }

    // The dialogs that add, edit, move, delete and rename. There are two ways to type, to accept and to
    // leave.

    void Type(const DialogOnScreen& dialog, int field, const std::wstring& text) {
        constexpr std::size_t kMostTyped = 30;
        if (text.size() > kMostTyped || text.empty() || OneIn(2)) return dialog.SetText(field, text);
        SendMessageW(dialog.Control(field), EM_SETSEL, 0, -1);
        for (const wchar_t character : text) PostMessageW(dialog.Control(field), WM_CHAR, character, 1);
        program_.Settle();
    }
    void Accept(const DialogOnScreen& dialog, int ok_button, int field) {
        if (OneIn(2))
            dialog.Click(ok_button);
        else
            PostMessageW(dialog.Control(field), WM_KEYDOWN, VK_RETURN, 1);
    }
    void Leave(const DialogOnScreen& dialog, int cancel_button) {
        Note("  cancel");
        if (OneIn(2))
            dialog.ClickAndWaitForClose(cancel_button);
        else
            dialog.Cancel();
    }
    void ExpectCategories(const DialogOnScreen& dialog, int combo) const {
        EXPECT_EQ(dialog.ComboItems(combo), model_.Names());
        EXPECT_EQ(dialog.Picked(combo), model_.Shown - 1);
    }
    void PickCategory(const DialogOnScreen& dialog, int combo, int category) {
        Note("  category " + std::to_string(category));
        dialog.Pick(combo, category - 1);
    }
    void ExpectForeignCharacterRefused(const DialogOnScreen& dialog, int field, const std::wstring& text) {
        const bool omega = text.find(L'Ω') != std::wstring::npos;
        AnswerBox(L"Hiba",
                  std::wstring(L"Ezt a karaktert a könyv nem tudja tárolni:\r\n\r\n") +
                      (omega ? L"„Ω” (U+03A9)" : L"„\xD83D\xDE00” (U+1F600)"),
                  IDOK);
        EXPECT_EQ(dialog.Focus(), field);
    }
    // Texts that the dialog refuses.
    void TryWrongTexts(const DialogOnScreen& dialog, const EntryDialog& ids) {
        const bool blank = OneIn(2);
        const bool foreign = !blank && OneIn(2);
        const bool short_address = !blank && !foreign && OneIn(2);
        const std::wstring name = blank ? texts_.BlankName() : foreign ? texts_.ForeignText() : texts_.Name();
        const std::wstring address = blank || foreign ? texts_.Address()
                                     : short_address  ? texts_.ShortAddress()
                                                      : texts_.ForeignText();
        Note("  wrong texts \"" + Narrow(name) + "\", \"" + Narrow(address) + "\"");
        Type(dialog, ids.Name, name);
        Type(dialog, ids.Address, address);
        Accept(dialog, ids.Ok, ids.Address);
        if (!blank && !short_address)
            return ExpectForeignCharacterRefused(dialog, foreign ? ids.Name : ids.Address,
                                                 foreign ? name : address);
        AnswerBox(L"Nem töltött ki minden mezőt", L"Kérem előbb töltse ki a szükséges mezőket!", IDOK);
        EXPECT_EQ(dialog.Focus(), ids.Name);
    }
    DialogOnScreen OpenEntryDialog(const EntryDialog& ids, const Row& expected) const {
        program_.Choose(ids.Command);
        const DialogOnScreen dialog = program_.Dialog(ids.Caption);
        ExpectCategories(dialog, ids.Category);
        EXPECT_EQ(dialog.Text(ids.Name), expected.first);
        EXPECT_EQ(dialog.Text(ids.Address), expected.second);
        return dialog;
    }
    // Picks a category or keeps the shown one, accepts or leaves; the category, or 0 when the dialog is left.
    int CloseEntryDialog(const DialogOnScreen& dialog, const EntryDialog& ids, const Row& row) {
        Note("  \"" + Narrow(row.first) + "\", \"" + Narrow(row.second) + "\"");
        const int category = OneIn(2) ? model_.Shown : RollCategory();
        if (category != model_.Shown) PickCategory(dialog, ids.Category, category);
        if (OneIn(6)) return Leave(dialog, ids.Cancel), 0;
        Accept(dialog, ids.Ok, OneIn(2) ? ids.Name : ids.Address);
        dialog.WaitForClose();
        return category;
    }
    void Add() {
        Note("add");
        const DialogOnScreen dialog = OpenEntryDialog(kAddDialog, {L"", L"http://"});
        Row row{texts_.Name(), L"http://"};
        const bool bare = OneIn(5);  // an address that is not known yet
        if (bare && OneIn(2)) {
            dialog.Click(ID_frmAdd_cmdEmail);
            row.second = L"mailto:";
        } else if (!bare && OneIn(5)) {
            TryWrongTexts(dialog, kAddDialog);
        }
        Type(dialog, kAddDialog.Name, row.first);
        if (!bare) Type(dialog, kAddDialog.Address, row.second = texts_.Address());
        const int category = CloseEntryDialog(dialog, kAddDialog, row);
        if (category != 0) model_.Add(category, row);
    }
    void Edit() {
        Note("edit");
        if (model_.Selected == 0) return program_.Run(ID_mnuEdit);
        Row row = model_.At({model_.Shown, model_.Selected});
        const DialogOnScreen dialog = OpenEntryDialog(kEditDialog, row);
        const bool wrong = OneIn(5);
        if (wrong) TryWrongTexts(dialog, kEditDialog);
        if (wrong || OneIn(2)) Type(dialog, kEditDialog.Name, row.first = texts_.Name());
        if (wrong || OneIn(2)) Type(dialog, kEditDialog.Address, row.second = texts_.Address());
        const int category = CloseEntryDialog(dialog, kEditDialog, row);
        if (category != 0) model_.Edit(category, row);
    }
    void Move() {
        Note("move");
        const bool chosen = model_.CheckedCount() != 0 || model_.HasAddress();
        if (!chosen || model_.RowCount() == 0) return program_.Run(ID_mnuMove);
        program_.Choose(ID_mnuMove);
        const DialogOnScreen dialog = program_.Dialog(L"A kiválasztott címek áthelyezése");
        ExpectCategories(dialog, ID_frmMove_cmbKateg);
        const int category = RollCategory();
        PickCategory(dialog, ID_frmMove_cmbKateg, category);
        if (OneIn(6)) return Leave(dialog, ID_frmMove_cmdCancel);
        Accept(dialog, ID_frmMove_cmdOk, ID_frmMove_cmbKateg);
        dialog.WaitForClose();
        model_.Move(category);
    }
    // The question whether to delete; whether the answer was yes. 0 stands for the selected entry.
    bool AnswerDeletion(int checked) {
        EXPECT_EQ(program_.Box().Icon(), BoxIcon::Question);
        const bool agreed = !OneIn(3);
        Note(agreed ? "  yes" : "  no");
        const std::wstring title = L"Törlés engedélyezése";
        if (checked != 0)
            AnswerBox(title, L"Töröljem a (" + std::to_wstring(checked) + L") bejelölt címet?",
                      agreed ? IDYES : IDNO);
        else
            AnswerBox(title, L"Tényleg ki akarja törölni ezt a web címet ?", agreed ? IDOK : IDCANCEL);
        return agreed;
    }
    void Delete() {
        Note("delete");
        if (model_.CheckedCount() == 0 && (!model_.HasAddress() || model_.Selected == 0))
            return program_.Run(ID_mnuDel);
        program_.Choose(ID_mnuDel);
        if (AnswerDeletion(model_.CheckedCount())) model_.DeleteRows();
    }
    void Rename() {
        Note("category names");
        program_.Choose(ID_mnuKat);
        const DialogOnScreen dialog = program_.Dialog(L"Kategóriák nevei");
        std::vector<std::wstring> names = model_.Names();
        int field = ID_frmEditKats_txtKateg_0;
        for (std::wstring& name : names) {
            EXPECT_EQ(dialog.Text(field), name);
            if (OneIn(10)) {
                const std::wstring foreign = texts_.ForeignText();
                Note("  wrong name \"" + Narrow(foreign) + "\"");
                Type(dialog, field, foreign);
                Accept(dialog, ID_frmEditKats_cmdOk, field);
                ExpectForeignCharacterRefused(dialog, field, foreign);
                Type(dialog, field, name);
            }
            if (OneIn(4)) Type(dialog, field, name = texts_.CategoryName());
            ++field;
        }
        if (OneIn(5)) return Leave(dialog, ID_frmEditKats_cmdCancel);
        Accept(dialog, ID_frmEditKats_cmdOk, ID_frmEditKats_txtKateg_0);
        dialog.WaitForClose();
        model_.Rename(names);
    }

    // The find dialog.

    struct Hit {
        EntryPlace Place;
        bool Checked = false;
    };
    void Find() {
        Note("find");
        program_.Choose(ID_mnuFind);
        if (model_.SeemsEmpty()) return AnswerBox(L"Lindrel", L"Az adatbázisban még nincsenek címek", IDOK);
        const FindDialog dialog(program_, program_.Dialog(L"Keresés"));
        hits_.clear();
        hit_deleted_ = false;
        for (int left = texts_.Roll(6); left > 0; --left) {
            static constexpr void (RandomUser::*kSteps[])(const FindDialog&) = {
                &RandomUser::Search,       &RandomUser::CheckHit, &RandomUser::CheckHit,
                &RandomUser::CheckAllHits, &RandomUser::ClickHit, &RandomUser::DeleteHits,
            };
            (this->*(hits_.empty() ? &RandomUser::Search : texts_.OneOf(kSteps)))(dialog);
            program_.Settle();
            ExpectHits(dialog);
        }
        dialog.Close();
        model_.CloseFind(CheckedHits(), hit_deleted_);
    }
    void Search(const FindDialog& dialog) {
        static constexpr const wchar_t* kNames[] = {L"", L"n", L"HÍR", L"ő", L"&", L"Ω", L" "};
        static constexpr const wchar_t* kEndings[] = {L"", L"", L"hu", L"COM", L"hu/", L"Ő"};
        what_ = texts_.OneOf(kNames);
        ending_ = texts_.OneOf(kEndings);
        Note("  search \"" + Narrow(what_) + "\" with ending \"" + Narrow(ending_) + "\"");
        dialog.Search(what_, ending_);
        ShowHitsAnew();
    }
    void ShowHitsAnew() {
        hits_.clear();
        for (const EntryPlace& place : model_.Find(what_, ending_)) hits_.push_back({place});
    }
    int RollHit() { return texts_.Roll(static_cast<int>(hits_.size())) + 1; }
    Hit& HitAt(int row) { return hits_.at(static_cast<std::size_t>(row - 1)); }
    void CheckHit(const FindDialog& dialog) {
        const int row = RollHit();
        Note("  box of hit " + std::to_string(row));
        dialog.Check({row});
        HitAt(row).Checked = !HitAt(row).Checked;
    }
    void CheckAllHits(const FindDialog& dialog) {
        const bool check = OneIn(2);
        Note(check ? "  check all hits" : "  uncheck all hits");
        dialog.Press(check ? ID_frmFind_Command2 : ID_frmFind_Command3);
        for (Hit& hit : hits_) hit.Checked = check;
    }
    void ClickHit(const FindDialog& dialog) {
        const int row = RollHit();
        Note("  hit " + std::to_string(row));
        dialog.ClickHit(row);
        EXPECT_EQ(dialog.Text(ID_frmFind_lblURL), model_.At(HitAt(row).Place).second);
        EXPECT_EQ(dialog.List().Selected(), row);
    }
    void DeleteHits(const FindDialog& dialog) {
        const int selected = dialog.List().Selected();
        std::vector<EntryPlace> doomed = CheckedHits();
        if (OneIn(2)) {
            Note("  delete the checked hits");
            dialog.Click(ID_frmFind_cmdDel);
            if (doomed.empty() || !AnswerDeletion(static_cast<int>(doomed.size()))) return;
        } else {
            Note("  delete hit " + std::to_string(selected));
            dialog.ListKey(VK_DELETE);
            if (selected == 0 || !AnswerDeletion(0)) return;
            doomed = {HitAt(selected).Place};
        }
        model_.DeleteFound(doomed);
        hit_deleted_ = true;
        ShowHitsAnew();
    }
    std::vector<EntryPlace> CheckedHits() const {
        std::vector<EntryPlace> checked;
        for (const Hit& hit : hits_)
            if (hit.Checked) checked.push_back(hit.Place);
        return checked;
    }
    void ExpectHits(const FindDialog& dialog) const {
        std::vector<Row> rows;
        std::vector<int> checked;
        for (const Hit& hit : hits_) {
            rows.emplace_back(model_.At(hit.Place).first, model_.Name(hit.Place.Category));
            if (hit.Checked) checked.push_back(static_cast<int>(rows.size()));
        }
        EXPECT_EQ(dialog.List().Rows(), rows);
        EXPECT_EQ(dialog.List().Checked(), checked);
        EXPECT_EQ(dialog.Text(ID_frmFind_lblSum_1), std::to_wstring(rows.size()));
    }

    // New, open, save and save as.

    std::wstring NewFile() { return folder_.File(L"könyv " + std::to_wstring(++files_made_) + L".lnd"); }
    // The model must have the path and the content already.
    void ExpectSaved(const std::wstring& path) {
        constexpr std::size_t kKeptFiles = 4;
        Note("  saved in " + Narrow(path.substr(path.rfind(L'\\') + 1)));
        AnswerBox(L"Lindrel", L"Elmentve : " + path, IDOK);
        EXPECT_EQ(TemporaryFolder::Read(path), model_.File());
        std::erase_if(saved_, [&path](const auto& saved) { return saved.first == path; });
        saved_.emplace_back(path, model_.File());
        if (saved_.size() <= kKeptFiles) return;
        std::filesystem::remove(saved_.front().first);
        saved_.pop_front();
    }
    int YesNoOrCancel() {
        static constexpr int kAnswers[] = {IDYES, IDNO, IDCANCEL};
        const int answer = texts_.OneOf(kAnswers);
        Note(answer == IDYES ? "  yes" : answer == IDNO ? "  no" : "  cancel");
        return answer;
    }
    enum class Offer { NotSaved, Saved, CalledOff };
    // Answers the question whether to save, if it has to come.
    Offer AnswerSaveQuestion() {
        if (!model_.Modified) return Offer::NotSaved;
        const int answer = YesNoOrCancel();
        AnswerBox(L"A file módosult", L"Kívánja menteni a módosításokat ?", answer);
        if (answer == IDCANCEL) return Offer::CalledOff;
        if (answer == IDNO) return Offer::NotSaved;
        std::wstring path = model_.OpenedFile;
        if (path.empty()) {
            const FileDialogOnScreen dialog = program_.FileDialog();
            if (OneIn(3)) {
                Note("  cancel");
                dialog.Cancel();
                return Offer::Saved;  // the changes are lost
            }
            dialog.Accept(path = NewFile());
        }
        model_.Save(path);
        ExpectSaved(path);
        return Offer::Saved;
    }
    void New() {
        Note("new");
        program_.Choose(OneIn(2) ? ID_mnuNew : ID_mnuClose);
        if (AnswerSaveQuestion() != Offer::CalledOff) model_.New();
    }
    void Open() {
        Note("open");
        program_.Choose(ID_mnuOpen);
        if (AnswerSaveQuestion() != Offer::NotSaved) return;
        const FileDialogOnScreen dialog = program_.FileDialog();
        if (saved_.empty() || OneIn(4)) {
            Note("  cancel");
            return dialog.Cancel();
        }
        const auto& [path, file] =
            saved_[static_cast<std::size_t>(texts_.Roll(static_cast<int>(saved_.size())))];
        Note("  " + Narrow(path));
        dialog.Accept(path);
        model_.Open(path, file);
    }
    void Save() {
        Note("save");
        if (!model_.Modified) return program_.Run(ID_mnuSave);
        program_.Choose(ID_mnuSave);
        if (!model_.OpenedFile.empty()) {
            model_.Save(model_.OpenedFile);
            return ExpectSaved(model_.OpenedFile);
        }
        const FileDialogOnScreen dialog = program_.FileDialog();
        if (OneIn(3)) return dialog.Cancel();
        const std::wstring path = NewFile();
        dialog.Accept(path);
        model_.SaveUnderNewName(path);
        ExpectSaved(path);
    }
    void SaveAs() {
        Note("save as");
        if (model_.SeemsEmpty()) return program_.Run(ID_mnuSaveAs);
        program_.Choose(ID_mnuSaveAs);
        while (true) {
            const FileDialogOnScreen dialog = program_.FileDialog();
            if (OneIn(4)) return dialog.Cancel();
            const bool existing = !saved_.empty() && OneIn(2);
            const std::wstring path = existing ? saved_.back().first : NewFile();
            dialog.Accept(path);
            model_.OpenedFile = path;  // also when the user then does not want to overwrite it
            const int answer = existing ? YesNoOrCancel() : IDYES;
            if (existing)
                AnswerBox(L"Lindrel", L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?",
                          answer);
            if (answer == IDCANCEL) return;
            if (answer == IDNO) continue;
            model_.SaveUnderNewName(path);
            return ExpectSaved(path);
        }
    }

    RandomTexts texts_;
    WindowModel model_;
    TemporaryFolder folder_;
    Program program_;
    std::deque<std::string> steps_;
    int steps_made_ = 0;
    int files_made_ = 0;
    std::deque<std::pair<std::wstring, std::string>> saved_;  // the last files, with what is in them

    // The find dialog while it is open.
    std::wstring what_, ending_;
    std::vector<Hit> hits_;
    bool hit_deleted_ = false;
};

std::uint32_t NumberFrom(const char* variable, std::uint32_t otherwise) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::stoul(text));
}

TEST(RandomWalkTest, TheProgramAgreesWithItsModel) {
    const std::uint32_t seed = NumberFrom("LINDREL_WALK_SEED", std::random_device()());
    const std::uint32_t steps = NumberFrom("LINDREL_WALK_STEPS", static_cast<std::uint32_t>(Times(500, 60)));
    std::cout << "LINDREL_WALK_SEED=" << seed << " LINDREL_WALK_STEPS=" << steps << std::endl;
    RandomUser user(seed);
    try {
        for (std::uint32_t step = 1; step <= steps && !HasFailure(); ++step) {
            user.Step();
            if (step % 10 == 0 && !HasFailure()) user.SaveAndReopen();
        }
    } catch (const PlainFault&) {
        ADD_FAILURE() << "the model refuses a step";
    } catch (const std::exception& thrown) {
        ADD_FAILURE() << thrown.what();
    }
    if (HasFailure()) std::cout << "the last steps:\n" << user.LastSteps() << std::flush;
}

}  // namespace
}  // namespace lindrel::testing
