// Changes of the user's settings while the program runs: those of its fonts and measures are followed, all
// others change nothing.

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

#include "resources/resource.h"
#include "tests/window/support/Program.h"
#include "tests/window/support/ReplacedImport.h"

namespace lindrel::testing {
namespace {

// The user's settings, but for a message font that a test makes larger, and a wider scroll bar.
class Settings {
  public:
    Settings() {
        font_factor = scroll_bar_more = 0;
        system = &SystemParametersInfoForDpi;
        ask_.emplace(&SystemParametersInfoForDpi, &Ask);
    }
    static inline int font_factor;
    static inline int scroll_bar_more;

  private:
    static BOOL WINAPI Ask(UINT what, UINT size, void* answer, UINT flags, UINT dpi) {
        if (!system(what, size, answer, flags, dpi)) return FALSE;
        if (what != SPI_GETNONCLIENTMETRICS) return TRUE;
        auto& metrics = *static_cast<NONCLIENTMETRICSW*>(answer);
        metrics.lfMessageFont.lfHeight *= font_factor + 1;
        metrics.iScrollWidth += scroll_bar_more;
        return TRUE;
    }
    static inline BOOL(WINAPI* system)(UINT, UINT, void*, UINT, UINT);
    std::optional<ReplacedImport> ask_;
};

std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        controls.push_back(child);
    return controls;
}

// The handles of what a window has made from the settings, and the windows that wait to be painted.
struct Made {
    std::vector<LRESULT> Handles;
    std::vector<HWND> Unpainted;
    bool operator==(const Made&) const = default;
};

void PrintTo(const Made& made, std::ostream* out) {
    *out << ::testing::PrintToString(made.Handles) << " unpainted "
         << ::testing::PrintToString(made.Unpainted);
}

Made MadeBy(HWND window) {
    Made made;
    for (const int size : {ICON_BIG, ICON_SMALL})
        made.Handles.push_back(SendMessageW(window, WM_GETICON, static_cast<WPARAM>(size), 0));
    if (GetUpdateRect(window, nullptr, FALSE)) made.Unpainted.push_back(window);
    for (const HWND control : ControlsOf(window)) {
        made.Handles.push_back(SendMessageW(control, WM_GETFONT, 0, 0));
        if (ClassOf(control) == WC_LISTVIEWW)
            made.Handles.push_back(SendMessageW(control, LVM_GETIMAGELIST, LVSIL_STATE, 0));
        if (ClassOf(control) == TOOLBARCLASSNAMEW)
            for (const int pictures : {TB_GETIMAGELIST, TB_GETDISABLEDIMAGELIST})
                made.Handles.push_back(SendMessageW(control, static_cast<UINT>(pictures), 0, 0));
        if (GetUpdateRect(control, nullptr, FALSE)) made.Unpainted.push_back(control);
    }
    return made;
}

LONG FontHeight(HWND window, int id) {
    return DialogOnScreen(window).Font(id).lfHeight;
}

std::vector<LONG> FontHeights(HWND window) {
    std::vector<LONG> heights;
    for (const HWND control : ControlsOf(window))
        if (ClassOf(control) != L"TrayArea") heights.push_back(FontHeight(window, GetDlgCtrlID(control)));
    return heights;
}

class SettingsTest : public ::testing::Test {
  protected:
    DialogOnScreen OpenFind() const {
        program.Add(1, {{L"Egy", L"http://egy.hu"}});
        program.Choose(ID_mnuFind);
        const DialogOnScreen dialog = program.Dialog(L"Keresés");
        program.Settle();
        return dialog;
    }
    // What a window has after some messages, before anything can be painted.
    Made After(HWND window, const std::vector<UINT>& messages) const {
        return program.Ask<Made>([&](frmStart&) {
            for (const UINT message : messages) SendMessageW(window, message, 0, 0);
            return MadeBy(window);
        });
    }

    Settings settings;
    Program program;
};

TEST_F(SettingsTest, OtherSettingsChangeNothing) {
    const Made before = After(program.Main(), {});
    EXPECT_EQ(before.Unpainted, std::vector<HWND>{});
    EXPECT_EQ(After(program.Main(), std::vector<UINT>(20, WM_SETTINGCHANGE)), before);
    EXPECT_EQ(After(program.Main(), {WM_THEMECHANGED}).Handles, before.Handles);

    const DialogOnScreen find = OpenFind();
    const Made before_in_dialog = After(find.Handle(), {});
    EXPECT_EQ(before_in_dialog.Unpainted, std::vector<HWND>{});
    EXPECT_EQ(After(find.Handle(), std::vector<UINT>(20, WM_SETTINGCHANGE)), before_in_dialog);
    find.Cancel();
}

TEST_F(SettingsTest, ANewMessageFontIsTakenOverByTheMainWindow) {
    const std::vector<LONG> heights = FontHeights(program.Main());
    const Made before = After(program.Main(), {});
    program.OnUi([](frmStart&) { Settings::font_factor = 1; });
    const Made after = After(program.Main(), {WM_SETTINGCHANGE});
    std::vector<LONG> doubled;
    for (const LONG height : heights) doubled.push_back(2 * height);
    EXPECT_EQ(FontHeights(program.Main()), doubled);
    EXPECT_NE(after.Handles, before.Handles);
    // Only once: the next message finds nothing new.
    program.Settle();
    const Made settled = After(program.Main(), {});
    EXPECT_EQ(After(program.Main(), {WM_SETTINGCHANGE}), settled);
}

TEST_F(SettingsTest, TheColumnsKeepTheWidthsThatTheUserGaveThem) {
    const HWND list = program.Control(ID_frmStart_ListURLs);
    const int address = ListView_GetColumnWidth(list, 1);
    ListView_SetColumnWidth(list, 0, 77);
    for (const int message : {WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED})
        SendMessageW(program.Main(), static_cast<UINT>(message), 0, 0);
    program.Settle();
    EXPECT_EQ(ListView_GetColumnWidth(list, 0), 77);
    EXPECT_EQ(ListView_GetColumnWidth(list, 1), address);
}

TEST_F(SettingsTest, AWiderScrollBarCountsAsWell) {
    const Made before = After(program.Main(), {});
    program.OnUi([](frmStart&) { Settings::scroll_bar_more = 5; });
    EXPECT_NE(After(program.Main(), {WM_SETTINGCHANGE}).Handles, before.Handles);
}

// A dialog is laid out for the font that it was opened with, as the system's own are.
TEST_F(SettingsTest, AnOpenDialogKeepsItsFontAndTheNextOneHasTheNew) {
    const DialogOnScreen find = OpenFind();
    const std::vector<LONG> heights = FontHeights(find.Handle());
    const Made before = After(find.Handle(), {});
    program.OnUi([](frmStart&) { Settings::font_factor = 1; });
    After(program.Main(), {WM_SETTINGCHANGE});
    EXPECT_EQ(After(find.Handle(), {WM_SETTINGCHANGE}).Handles, before.Handles);
    EXPECT_EQ(FontHeights(find.Handle()), heights);
    find.Cancel();
    program.Settle();
    program.Choose(ID_mnuFind);
    const DialogOnScreen next = program.Dialog(L"Keresés");
    EXPECT_EQ(FontHeight(next.Handle(), ID_frmFind_lblURL), FontHeight(program.Main(), ID_frmStart_txtURL));
    next.Cancel();
}

TEST_F(SettingsTest, NewColoursRedrawTheCheckBoxes) {
    const DialogOnScreen find = OpenFind();
    const HWND list_of_main = program.Control(ID_frmStart_ListURLs);
    const HWND list_of_dialog = find.Control(ID_frmFind_ListView);
    const std::vector<std::pair<HWND, UINT>> told = {{program.Main(), WM_SYSCOLORCHANGE},
                                                     {find.Handle(), WM_SYSCOLORCHANGE},
                                                     {list_of_main, WM_THEMECHANGED},
                                                     {list_of_dialog, WM_THEMECHANGED}};
    for (const auto& [window, message] : told) {
        const HWND list = window == program.Main() || window == list_of_main ? list_of_main : list_of_dialog;
        const int pictures = program.Ask<int>([&, told_window = window, told_message = message](frmStart&) {
            // A list of one picture instead of two, by which a new one can be told.
            const HIMAGELIST single = ImageList_Create(16, 16, ILC_COLOR32, 1, 0);
            ImageList_SetImageCount(single, 1);
            const auto old = reinterpret_cast<HIMAGELIST>(
                SendMessageW(list, LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(single)));
            ImageList_Destroy(old);
            SendMessageW(told_window, told_message, 0, 0);
            return ImageList_GetImageCount(
                reinterpret_cast<HIMAGELIST>(SendMessageW(list, LVM_GETIMAGELIST, LVSIL_STATE, 0)));
        });
        EXPECT_EQ(pictures, 2) << message << " to " << ClassOf(window);
    }
    find.Cancel();
}

}  // namespace
}  // namespace lindrel::testing
