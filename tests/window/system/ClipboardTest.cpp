// Text on the real clipboard, together with what other programs have put there and while they use it.

#include "system/Clipboard.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include <future>
#include <thread>
#include <vector>

#include "tests/window/support/Drawn.h"
#include "tests/window/support/Polling.h"
#include "tests/window/support/RealClipboard.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

using Forms = std::map<UINT, std::string>;

HWND MakeWindow() {
    return CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
}

// Another program's window on a thread of its own, which does something with the clipboard and then hangs
// until Go() is called.
class OtherProgram {
  public:
    explicit OtherProgram(const std::function<void(HWND)>& act)
        : thread_([this, act] {
              const HWND window = MakeWindow();
              act(window);
              acted_.set_value();
              go_.get_future().wait();
              CloseClipboard();
              DestroyWindow(window);
          }) {
        acted_.get_future().wait();
    }
    ~OtherProgram() {
        if (thread_.joinable()) Go();
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    // Returns when the clipboard is free.
    void Go() {
        go_.set_value();
        thread_.join();
    }

  private:
    std::promise<void> acted_;
    std::promise<void> go_;
    std::thread thread_;
};

void OpenAndKeep(HWND window) {
    WaitUntil("the clipboard", [window] { return OpenClipboard(window) != FALSE; });
}

// How often the clipboard was to be opened, and what happens before the fourth time.
int tries = 0;
std::function<void()> before_fourth_try;
decltype(&::OpenClipboard) real_open = nullptr;

BOOL WINAPI CountTry(HWND owner) {
    if (++tries == 4 && before_fourth_try) before_fourth_try();
    return real_open(owner);
}

// How often data on the clipboard was asked for. There is none: the program that promised it may hang.
int demands = 0;

HANDLE WINAPI CountDemand(UINT) {
    ++demands;
    return nullptr;
}

// After how many tries each beep was heard.
std::vector<int> beeps;

BOOL WINAPI HearBeep(UINT kind) {
    EXPECT_EQ(kind, static_cast<UINT>(MB_OK));
    beeps.push_back(tries);
    return TRUE;
}

class ClipboardTest : public ::testing::Test {
  protected:
    ClipboardTest() {
        tries = 0;
        before_fourth_try = nullptr;
        real_open = &::OpenClipboard;
        demands = 0;
        beeps.clear();
    }
    ~ClipboardTest() override { DestroyWindow(window); }

    const ReplacedImport hearing{&MessageBeep, &HearBeep};
    const std::set<UINT> text_forms{CF_UNICODETEXT, CF_TEXT, CF_OEMTEXT, CF_LOCALE};
    HWND window = MakeWindow();
};

// A picture of 2 by 2 pixels as the clipboard has it.
std::string Dib() {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = 2;
    header.biHeight = 2;
    header.biPlanes = 1;
    header.biBitCount = 24;
    return std::string(reinterpret_cast<const char*>(&header), sizeof header) +
           std::string("\1\2\3\4\5\6\0\0\7\10\11\12\13\14\0\0", 16);
}

// A list of one file.
std::string Files() {
    DROPFILES header{};
    header.pFiles = sizeof header;
    header.fWide = TRUE;
    const std::wstring names = std::wstring(L"C:\\Képek\\ő.txt") + L'\0' + L'\0';
    return std::string(reinterpret_cast<const char*>(&header), sizeof header) +
           std::string(reinterpret_cast<const char*>(names.data()), names.size() * sizeof(wchar_t));
}

TEST_F(ClipboardTest, ATextIsThereForProgramsThatWantBytesToo) {
    SetClipboardText(window, L"Árvíztűrő");
    EXPECT_EQ(FormsOnClipboard(), text_forms);
    EXPECT_EQ(TextOnClipboard(), L"Árvíztűrő");
    EXPECT_EQ(BytesOnClipboard(CF_TEXT), std::string("\xc1rv\xedzt\xfbr\xf5", 9) + '\0');
    EXPECT_EQ(ClipboardText(window), L"Árvíztűrő");
    SetClipboardText(window, L"");
    EXPECT_EQ(FormsOnClipboard(), text_forms);
    EXPECT_EQ(TextOnClipboard(), L"");
    EXPECT_EQ(ClipboardText(window), L"");
}

TEST_F(ClipboardTest, EveryOtherFormOfAnOlderTextIsRemoved) {
    const std::string old_locale("\x09\x04\0\0", 4);
    Forms forms{
        {CF_TEXT, std::string("old\0", 4)}, {CF_OEMTEXT, std::string("old\0", 4)}, {CF_LOCALE, old_locale}};
    for (const wchar_t* const name :
         {L"HTML Format", L"Rich Text Format", L"Link Source", L"Embed Source", L"UniformResourceLocatorW",
          L"Csv", L"DataObject", L"Lindrel test form"})
        forms[RegisterClipboardFormatW(name)] = "old";
    PutClipboardForms(forms);
    SetClipboardText(window, L"új");
    EXPECT_EQ(FormsOnClipboard(), text_forms);
    EXPECT_EQ(TextOnClipboard(), L"új");
    EXPECT_EQ(BytesOnClipboard(CF_TEXT), std::string("\xfaj\0", 3));
    EXPECT_NE(BytesOnClipboard(CF_LOCALE), old_locale);
}

TEST_F(ClipboardTest, PicturesSoundsAndFilesStayByteForByte) {
    Forms forms{{CF_DIB, Dib()}, {CF_HDROP, Files()}, {CF_TIFF, "II*"}, {CF_WAVE, "RIFF"}};
    forms[RegisterClipboardFormatW(L"PNG")] = std::string("\x89PNG\0\1", 6);
    forms[RegisterClipboardFormatW(L"Preferred DropEffect")] = std::string("\2\0\0\0", 4);
    Forms with_text = forms;
    with_text[RegisterClipboardFormatW(L"HTML Format")] = "old";
    PutClipboardForms(with_text);
    for (const wchar_t* const text : {L"egy", L"kettő"}) {
        SetClipboardText(window, text);
        EXPECT_EQ(TextOnClipboard(), text);
        for (const auto& [format, bytes] : forms) EXPECT_EQ(BytesOnClipboard(format), bytes) << format;
        std::set<UINT> expected = text_forms;
        for (const auto& [format, bytes] : forms) expected.insert(format);
        expected.insert({CF_BITMAP, CF_DIBV5});  // the system makes them of the other one
        EXPECT_EQ(FormsOnClipboard(), expected);
    }
}

// Their handles are GDI objects, not memory.
TEST_F(ClipboardTest, PicturesThatAreDrawingsStay) {
    const auto colours = [](HBITMAP bitmap) {
        return Drawn(3, [bitmap](HDC dc) {
            const HDC source = CreateCompatibleDC(dc);
            const HGDIOBJ before = SelectObject(source, bitmap);
            EXPECT_TRUE(BitBlt(dc, 0, 0, 3, 3, source, 0, 0, SRCCOPY));
            SelectObject(source, before);
            DeleteDC(source);
        });
    };
    const DWORD pixels[9] = {0x112233, 0x445566, 0x778899, 0xaabbcc, 0xddeeff, 0, 1, 2, 3};
    const HBITMAP bitmap = CreateBitmap(3, 3, 1, 32, pixels);
    const std::vector<COLORREF> wanted = colours(bitmap);
    const HDC recording = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    Rectangle(recording, 1, 2, 30, 40);
    const HENHMETAFILE drawing = CloseEnhMetaFile(recording);
    const auto bytes_of = [](HENHMETAFILE file) {
        std::string bytes(GetEnhMetaFileBits(file, 0, nullptr), '\0');
        GetEnhMetaFileBits(file, static_cast<UINT>(bytes.size()), reinterpret_cast<BYTE*>(bytes.data()));
        return bytes;
    };
    const std::string drawn = bytes_of(drawing);
    OpenAndKeep(window);
    EXPECT_TRUE(EmptyClipboard());
    EXPECT_NE(SetClipboardData(CF_BITMAP, bitmap), nullptr);
    EXPECT_NE(SetClipboardData(CF_ENHMETAFILE, drawing), nullptr);
    CloseClipboard();

    SetClipboardText(window, L"szöveg");
    EXPECT_EQ(TextOnClipboard(), L"szöveg");
    OpenAndKeep(window);
    EXPECT_EQ(colours(static_cast<HBITMAP>(GetClipboardData(CF_BITMAP))), wanted);
    EXPECT_EQ(bytes_of(static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE))), drawn);
    CloseClipboard();
}

TEST_F(ClipboardTest, AProgramThatSoonClosesItIsWaitedFor) {
    const auto while_busy = [](const std::function<void()>& use) {
        OtherProgram other(&OpenAndKeep);
        tries = 0;
        before_fourth_try = [&] { other.Go(); };
        const ReplacedImport counting(&::OpenClipboard, &CountTry);
        use();
        EXPECT_EQ(tries, 4);
    };
    PutClipboardText(L"régi");
    while_busy([this] { SetClipboardText(window, L"új"); });
    EXPECT_EQ(TextOnClipboard(), L"új");
    while_busy([this] { EXPECT_EQ(ClipboardText(window), L"új"); });
    EXPECT_EQ(beeps, std::vector<int>{});
}

TEST_F(ClipboardTest, AProgramThatKeepsItOpenIsLeftAloneSoonWithABeep) {
    PutClipboardText(L"régi");
    {
        const OtherProgram other(&OpenAndKeep);
        const ReplacedImport counting(&::OpenClipboard, &CountTry);
        for (const bool reading : {false, true}) {
            tries = 0;
            if (reading)
                EXPECT_EQ(ClipboardText(window), L"");
            else
                SetClipboardText(window, L"új");
            // After pauses of 10, 20, 40, 80 and the remaining 50 milliseconds.
            EXPECT_EQ(tries, 6);
        }
    }
    EXPECT_EQ(beeps, (std::vector<int>{6, 6}));
    EXPECT_EQ(TextOnClipboard(), L"régi");
}

TEST_F(ClipboardTest, AProgramThatHangsIsNotAskedForWhatItPromised) {
    const auto promise = [](HWND promising) {
        OpenAndKeep(promising);
        EXPECT_TRUE(EmptyClipboard());
        SetClipboardData(CF_UNICODETEXT, nullptr);
        SetClipboardData(CF_DIB, nullptr);
        CloseClipboard();
    };
    const OtherProgram other(promise);
    {
        const ReplacedImport counting(&::GetClipboardData, &CountDemand);
        EXPECT_EQ(ClipboardText(window), L"");
        SetClipboardText(window, L"új");
    }
    EXPECT_EQ(demands, 0);
    EXPECT_EQ(beeps.size(), 2u);
    EXPECT_EQ(FormsOnClipboard().count(CF_DIB), 1u);
}

}  // namespace
}  // namespace lindrel::testing
