#include "help/HTMLHelp.h"

#include <utility>

#include "system/Shell.h"
#include "system/SystemLibrary.h"

namespace lindrel {

namespace {

constexpr UINT kDisplayContents = 1;  // HH_DISPLAY_TOC
constexpr UINT kCloseAll = 18;        // HH_CLOSE_ALL

bool shown = false;  // since CloseHelp was last called

// `file` is a path and, after ">", a window type; `command` is one of the viewer's HH_ commands.
using HelpViewer = HWND(WINAPI*)(HWND owner, const wchar_t* file, UINT command, DWORD_PTR data);

// The program also starts where the viewer is not installed.
HelpViewer InstalledViewer() {
    return SystemFunction<HelpViewer>(L"hhctrl.ocx", "HtmlHelpW");
}

}  // namespace

std::wstring HelpFilePath(std::int16_t kind) {
    return kind == 1 ? ProgramFolder() + L"\\lnd.chm" : std::wstring();
}

void ShowHelp(std::int16_t kind, const std::wstring& window) {
    const HelpViewer viewer = InstalledViewer();
    if (viewer == nullptr) return;
    const std::wstring file = HelpFilePath(kind) + L">" + window;
    // The viewer returns its window, and reports failures itself.
    static_cast<void>(viewer(nullptr, file.c_str(), kDisplayContents, 0));
    shown = true;
}

void CloseHelp() {
    if (!std::exchange(shown, false)) return;
    // The viewer is installed, since it has shown something. This command has no result.
    static_cast<void>(InstalledViewer()(nullptr, nullptr, kCloseAll, 0));
}

}  // namespace lindrel
