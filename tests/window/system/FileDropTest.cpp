// A book file that is dragged onto the main window: through the drop target that the system knows, and
// through the system's own drag with a real pointer.

#include <ole2.h>
#include <shlobj.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <optional>

#include "tests/window/app/FileSession.h"
#include "tests/window/support/RealInput.h"
#include "tests/window/support/ReplacedImport.h"

// COM's interfaces have no virtual destructors.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace lindrel::testing {
namespace {

constexpr DWORD kAll = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK;

// A COM object that lives on the stack of the test.
template <typename Interface>
class OnStack : public Interface {
  public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        *object = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, __uuidof(Interface)) ? this : nullptr;
        return *object != nullptr ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
};

// What is dragged: files, or a text when there are none.
class Dragged final : public OnStack<IDataObject> {
  public:
    explicit Dragged(std::vector<std::wstring> files) : files_(std::move(files)) {}

    STDMETHODIMP GetData(FORMATETC* form, STGMEDIUM* medium) override {
        *medium = {};
        if (QueryGetData(form) != S_OK) return DV_E_FORMATETC;
        std::wstring names;
        for (const std::wstring& file : files_) names += file + L'\0';
        names += L'\0';
        DROPFILES head{};
        head.pFiles = sizeof head;
        head.fWide = TRUE;
        const std::size_t bytes = names.size() * sizeof(wchar_t);
        const HGLOBAL memory = GlobalAlloc(GHND, sizeof head + bytes);
        auto* const locked = static_cast<char*>(GlobalLock(memory));
        std::memcpy(locked, &head, sizeof head);
        std::memcpy(locked + sizeof head, names.data(), bytes);
        GlobalUnlock(memory);
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memory;
        return S_OK;
    }
    STDMETHODIMP QueryGetData(FORMATETC* form) override {
        return form->cfFormat == CF_HDROP && !files_.empty() ? S_OK : DV_E_FORMATETC;
    }
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP EnumFormatEtc(DWORD, IEnumFORMATETC** formats) override {
        FORMATETC files{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        return SHCreateStdEnumFmtEtc(1, &files, formats);
    }
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    STDMETHODIMP DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

  private:
    std::vector<std::wstring> files_;
};

// Drops once the cursor says what it should. When to drop is for the source to say; it does not wait for a
// mouse button, whose release goes to another window when the focus has just changed.
class Source final : public OnStack<IDropSource> {
  public:
    explicit Source(DWORD cursor) : cursor_(cursor) {}

    // Asked several times in a second.
    STDMETHODIMP QueryContinueDrag(BOOL escaped, DWORD) override {
        if (escaped || std::chrono::steady_clock::now() > deadline_) return DRAGDROP_S_CANCEL;
        return shown_ == cursor_ ? DRAGDROP_S_DROP : S_OK;
    }
    STDMETHODIMP GiveFeedback(DWORD effect) override {
        shown_ = effect;
        return DRAGDROP_S_USEDEFAULTCURSORS;
    }

  private:
    DWORD cursor_;
    std::optional<DWORD> shown_;
    const std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::now() + kDeadline;
};

class FileDropTest : public FileSession {
  protected:
    // What the cursor says over the window, and over it again, and what comes of letting go.
    struct Effects {
        DWORD Enter, Over, Drop;
        bool operator==(const Effects&) const = default;
    };
    static constexpr Effects kRefused{DROPEFFECT_NONE, DROPEFFECT_NONE, DROPEFFECT_NONE};
    static constexpr Effects kTaken{DROPEFFECT_COPY, DROPEFFECT_COPY, DROPEFFECT_COPY};

    // The target that is registered for the main window.
    static IDropTarget* TargetOf(const frmStart& form) {
        return static_cast<IDropTarget*>(GetPropW(form.Handle(), L"OleDropTargetInterface"));
    }
    // On the program's thread, as the system does.
    Effects DropFiles(const std::vector<std::wstring>& files, DWORD offered = kAll) const {
        Effects effects{offered, offered, offered};
        program.OnUi([&](frmStart& form) {
            IDropTarget* const target = TargetOf(form);
            ASSERT_NE(target, nullptr);
            Dragged dragged(files);
            EXPECT_EQ(target->DragEnter(&dragged, MK_LBUTTON, {}, &effects.Enter), S_OK);
            EXPECT_EQ(target->DragOver(MK_LBUTTON, {}, &effects.Over), S_OK);
            EXPECT_EQ(target->Drop(&dragged, 0, {}, &effects.Drop), S_OK);
        });
        return effects;
    }
    // Drags files with the mouse, which is over the main window's list, and lets them go there.
    void Drag(const std::vector<std::wstring>& files, DWORD cursor) const {
        RealInput(program).Move(program.Control(ID_frmStart_ListURLs), {100, 100});
        ASSERT_EQ(OleInitialize(nullptr), S_OK);
        Dragged dragged(files);
        Source source(cursor);
        DWORD effect = kAll;
        EXPECT_EQ(DoDragDrop(&dragged, &source, kAll, &effect), DRAGDROP_S_DROP)
            << "the cursor says otherwise";
        EXPECT_EQ(effect, cursor);
        OleUninitialize();
    }
    MainState Opened(const std::wstring& path) const {
        MainState state = EmptyState();
        state.Title = L"Lindrel -" + std::filesystem::path(path).filename().wstring();
        state.Rows = {{L"Más", L"http://mas.hu"}};
        state.Status[1] = L"megjelenítve (1 / 1)";
        state.OpenedFile = path;
        return state;
    }

    const std::string bytes = OneEntryBook("M\xE1s\r\nhttp://mas.hu\r\n");
    const std::wstring book = folder.Write(L"Más könyv.LnD", bytes);
};

TEST_F(FileDropTest, ABookIsOpened) {
    EXPECT_EQ(DropFiles({book}), kTaken);
    ExpectState(Opened(book));
    EXPECT_EQ(program.BookBytes(), bytes);
}

TEST_F(FileDropTest, AProgramThatOffersOnlyLinksIsWelcomeToo) {
    EXPECT_EQ(DropFiles({book}, DROPEFFECT_LINK),
              (Effects{DROPEFFECT_LINK, DROPEFFECT_LINK, DROPEFFECT_LINK}));
    ExpectState(Opened(book));
    EXPECT_EQ(DropFiles({book}, DROPEFFECT_MOVE), kRefused);
}

TEST_F(FileDropTest, AnythingElseIsRefused) {
    const std::wstring text = folder.Write(L"lnd", bytes);
    const std::wstring other = folder.Write(L"a.lnd.txt", bytes);
    const std::wstring nameless = folder.Write(L".lnd", bytes);
    const std::wstring sub = folder.File(L"mappa.lnd");
    std::filesystem::create_directory(sub);
    const std::vector<std::vector<std::wstring>> tried = {
        {}, {text}, {other}, {sub}, {folder.File(L"nincs.lnd")}, {book, book}, {L""}, {L".lnd"}};
    for (const auto& files : tried) {
        EXPECT_EQ(DropFiles(files), kRefused);
        ExpectState(EmptyState());
    }
    EXPECT_EQ(DropFiles({nameless}), kTaken);  // as the open dialog takes it
    program.Settle();
}

TEST_F(FileDropTest, ABookThatIsLeftAgainIsNotOpened) {
    program.OnUi([this](frmStart& form) {
        IDropTarget* const target = TargetOf(form);
        Dragged dragged({book});
        DWORD effect = kAll;
        EXPECT_EQ(target->DragEnter(&dragged, MK_LBUTTON, {}, &effect), S_OK);
        EXPECT_EQ(target->DragLeave(), S_OK);
        effect = kAll;
        EXPECT_EQ(target->Drop(&dragged, 0, {}, &effect), S_OK);
        EXPECT_EQ(effect, static_cast<DWORD>(DROPEFFECT_NONE));
    });
    ExpectState(EmptyState());
}

TEST_F(FileDropTest, UnsavedChangesAreAskedAboutAsByOpen) {
    Change();
    EXPECT_EQ(DropFiles({book}), kTaken);
    ExpectSaveQuestion(L"A file módosult", IDCANCEL);
    ExpectState(ChangedState());

    // Yes saves and opens nothing.
    EXPECT_EQ(DropFiles({book}), kTaken);
    ExpectSaveQuestion(L"A file módosult", IDYES);
    const std::wstring saved = folder.File(L"a.lnd");
    program.FileDialog().Accept(saved);
    ExpectSaved(saved);
    MainState expected = ChangedState();
    expected.OpenedFile = saved;
    expected.Modified = false;
    ExpectState(expected);
    EXPECT_EQ(TemporaryFolder::Read(saved), ChangedBook());

    program.OnUi([](frmStart& form) { form.OpenedBook().Modified = true; });
    EXPECT_EQ(DropFiles({book}), kTaken);
    ExpectSaveQuestion(L"A file módosult", IDNO);
    ExpectState(Opened(book));
}

TEST_F(FileDropTest, ABrokenBookLeavesTheOpenOne) {
    EXPECT_EQ(DropFiles({book}), kTaken);
    ExpectState(Opened(book));
    EXPECT_EQ(DropFiles({folder.Write(L"rossz.lnd", "#1\r\n")}), kTaken);
    const BoxOnScreen box = program.Box();
    EXPECT_EQ(box.Title(), L"Hiba a beolvasásnál");
    box.Press(IDOK);
    ExpectState(Opened(book));
}

TEST_F(FileDropTest, NothingIsTakenWhileADialogIsOpen) {
    Change();
    program.Choose(ID_mnuKat);
    const DialogOnScreen dialog = program.Dialog(L"Kategóriák nevei");
    EXPECT_EQ(DropFiles({book}), kRefused);
    dialog.Cancel();
    ExpectState(ChangedState());
    program.Choose(ID_mnuOpen);
    const BoxOnScreen question = program.Box();
    EXPECT_EQ(DropFiles({book}), kRefused);
    question.Press(IDCANCEL);
    ExpectState(ChangedState());
}

TEST_F(FileDropTest, ADialogThatWasOnItsWayKeepsTheBook) {
    Change();
    program.OnUi([&](frmStart& form) {
        PostMessageW(form.Handle(), WM_COMMAND, ID_mnuKat, 0);
        DropFiles({book});
    });
    const DialogOnScreen dialog = program.Dialog(L"Kategóriák nevei");
    program.Settle();
    EXPECT_TRUE(dialog.IsOpen());
    dialog.Cancel();
    ExpectState(ChangedState());
}

// Only while the drop is handled may the program take the foreground from the one that the file comes from.
TEST_F(FileDropTest, TheWindowIsInTheForegroundBeforeTheBookIsOpened) {
    const HWND other = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr,
                                       nullptr, nullptr);
    ASSERT_TRUE(SetForegroundWindow(other));
    ASSERT_EQ(GetForegroundWindow(), other);
    program.OnUi([&](frmStart& form) {
        EXPECT_EQ(DropFiles({book}), kTaken);
        EXPECT_EQ(GetForegroundWindow(), form.Handle());
        EXPECT_EQ(form.OpenedBook().OpenedFile, L"");
    });
    ExpectState(Opened(book));
    EXPECT_TRUE(DestroyWindow(other));
}

HRESULT WINAPI RefuseTarget(HWND, IDropTarget*) {
    return E_OUTOFMEMORY;
}

TEST_F(FileDropTest, WithoutDroppingTheProgramStartsAndEnds) {
    program.Close();
    EXPECT_EQ(program.WaitForEnd(), 0);
    const ReplacedImport refusing(&RegisterDragDrop, &RefuseTarget);
    Program without;
    without.OnUi([](frmStart& form) { EXPECT_EQ(TargetOf(form), nullptr); });
    testing::ExpectState(without, EmptyState());
    without.Choose(ID_mnuOpen);
    without.FileDialog().Accept(book);
    testing::ExpectState(without, Opened(book));
    without.Close();
    EXPECT_EQ(without.WaitForEnd(), 0);
}

TEST_F(FileDropTest, TheMouseDropsABook) {
    Drag({book}, DROPEFFECT_COPY);
    ExpectState(Opened(book));
}

TEST_F(FileDropTest, TheCursorRefusesAnythingElse) {
    Drag({folder.Write(L"a.txt", bytes)}, DROPEFFECT_NONE);
    ExpectState(EmptyState());
}

}  // namespace
}  // namespace lindrel::testing
