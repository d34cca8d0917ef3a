// New, open, save and save as.

#include <gtest/gtest.h>

#include <filesystem>

#include "resources/resource.h"
#include "tests/window/support/RandomUser.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {

namespace {
constexpr std::size_t kKeptFiles = 4;
}

std::wstring RandomUser::NewFile() {
    return folder_.File(L"könyv " + std::to_wstring(++files_made_) + L".lnd");
}

// The model must hold the path and the content already.
void RandomUser::ExpectSaved(const std::wstring& path) {
    Note("  saved in " + Narrow(path.substr(path.rfind(L'\\') + 1)));
    const BoxOnScreen box = program_.Box();
    EXPECT_EQ(box.Title(), L"Lindrel");
    EXPECT_EQ(box.Text(), L"Elmentve : " + path);
    box.Press(IDOK);
    program_.Settle();
    ExpectFileOfBook(path);
    std::erase_if(saved_, [&path](const auto& saved) { return saved.first == path; });
    saved_.emplace_back(path, lists_);
    if (saved_.size() <= kKeptFiles) return;
    std::filesystem::remove(saved_.front().first);
    saved_.pop_front();
}

void RandomUser::ExpectFileOfBook(const std::wstring& path) {
    EXPECT_EQ(TemporaryFolder::Read(path), lists_.File());
}

RandomUser::Offer RandomUser::AnswerSaveQuestion() {
    if (!lists_.Modified) return Offer::NotSaved;
    const BoxOnScreen box = program_.Box();
    EXPECT_EQ(box.Title(), L"A file módosult");
    EXPECT_EQ(box.Text(), L"Kívánja menteni a módosításokat ?");
    static constexpr int kAnswers[] = {IDYES, IDNO, IDCANCEL};
    const int answer = kAnswers[texts_.Roll(3)];
    Note(answer == IDYES ? "  yes" : answer == IDNO ? "  no" : "  cancel");
    box.Press(answer);
    if (answer == IDCANCEL) return Offer::CalledOff;
    if (answer == IDNO) return Offer::NotSaved;
    std::wstring path = lists_.OpenedFile;
    if (path.empty()) {
        const FileDialogOnScreen dialog = program_.FileDialog();
        if (OneIn(3)) {
            Note("  cancel");
            dialog.Cancel();
            return Offer::Saved;  // the changes are lost
        }
        dialog.Accept(path = NewFile());
    }
    lists_.Save(path);
    ExpectSaved(path);
    return Offer::Saved;
}

void RandomUser::New() {
    Note("new");
    program_.Choose(OneIn(2) ? ID_mnuNew : ID_mnuClose);
    if (AnswerSaveQuestion() != Offer::CalledOff) lists_.New();
}

void RandomUser::Open() {
    Note("open");
    program_.Choose(ID_mnuOpen);
    if (AnswerSaveQuestion() != Offer::NotSaved) return;
    const FileDialogOnScreen dialog = program_.FileDialog();
    if (saved_.empty() || OneIn(4)) {
        Note("  cancel");
        return dialog.Cancel();
    }
    const auto& [path, saved] =
        saved_[static_cast<std::size_t>(texts_.Roll(static_cast<int>(saved_.size())))];
    Note("  " + Narrow(path));
    dialog.Accept(path);
    lists_.Open(saved, path);
}

void RandomUser::Save() {
    Note("save");
    if (!lists_.Modified) return program_.Run(ID_mnuSave);
    program_.Choose(ID_mnuSave);
    if (!lists_.OpenedFile.empty()) {
        lists_.Save(lists_.OpenedFile);
        return ExpectSaved(lists_.OpenedFile);
    }
    const FileDialogOnScreen dialog = program_.FileDialog();
    if (OneIn(3)) return dialog.Cancel();
    const std::wstring path = NewFile();
    dialog.Accept(path);
    lists_.SaveUnderNewName(path);
    ExpectSaved(path);
}

void RandomUser::SaveAs() {
    Note("save as");
    if (lists_.SeemsEmpty()) return program_.Run(ID_mnuSaveAs);
    program_.Choose(ID_mnuSaveAs);
    while (true) {
        const FileDialogOnScreen dialog = program_.FileDialog();
        if (OneIn(4)) return dialog.Cancel();
        const bool existing = !saved_.empty() && OneIn(2);
        const std::wstring path = existing ? saved_.back().first : NewFile();
        dialog.Accept(path);
        lists_.OpenedFile = path;  // also when the user then does not want to overwrite it
        int answer = IDYES;
        if (existing) {
            const BoxOnScreen box = program_.Box();
            EXPECT_EQ(box.Text(), L"A " + path + L" már létezik.\r\nFelülírjam a már létező fájlt?");
            static constexpr int kAnswers[] = {IDYES, IDNO, IDCANCEL};
            box.Press(answer = kAnswers[texts_.Roll(3)]);
        }
        if (answer == IDCANCEL) return;
        if (answer == IDNO) continue;
        lists_.SaveUnderNewName(path);
        return ExpectSaved(path);
    }
}

void RandomUser::SaveAndReopen() {
    Note("save and open again");
    if (lists_.SeemsEmpty()) return;
    const std::wstring path = NewFile();
    program_.Choose(ID_mnuSaveAs);
    program_.FileDialog().Accept(path);
    lists_.SaveUnderNewName(path);
    ExpectSaved(path);
    Compare();
    program_.Choose(ID_mnuOpen);
    program_.FileDialog().Accept(path);
    program_.Settle();
    const TwelveLists saved = lists_;
    lists_.Open(saved, path);
    Compare();
}

}  // namespace lindrel::testing
