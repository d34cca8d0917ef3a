// The system's dialogs for opening and saving files.
#pragma once

#include <optional>
#include <string>

#include "window/Windows.h"

namespace lindrel {

struct FileDialogOptions {
    std::wstring Title{};
    std::wstring Filter{};      // "text|pattern|text|pattern..."
    std::wstring FileName{};    // proposed; may be empty
    std::wstring DefaultExt{};  // without a dot; appended by the save dialog if none is typed
    // The folder shown first; Windows chooses it if this is empty. Pass the same folder each time: Windows
    // then shows the folder that was used last.
    std::wstring InitDir{};
    bool AskToOverwrite = false;  // whether the save dialog asks before an existing file is chosen
};

// These functions return the full path of the chosen file, or nullopt if the user cancels. If the dialog
// fails, they show a message box and throw SystemFault.

// Shows the dialog again, after a message box, until the chosen file exists.
std::optional<std::wstring> ChooseExistingFile(HWND owner, FileDialogOptions options);
std::optional<std::wstring> ChooseFileToOpen(HWND owner, const FileDialogOptions& options);
std::optional<std::wstring> ChooseFileToSave(HWND owner, const FileDialogOptions& options);

// Whether there is such a file. If not, tells the user ("A megadott fájl nem létezik").
bool FileExists(HWND owner, const std::wstring& path);

}  // namespace lindrel
