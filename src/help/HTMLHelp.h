// The help file beside the program and the system's viewer for it.
#pragma once

#include <cstdint>
#include <string>

namespace lindrel {

// Full path of the help file of a kind, whether or not it is there: kind 1 is lnd.chm in the program's
// folder. There is no other kind; for any other number the path is empty.
std::wstring HelpFilePath(std::int16_t kind);

// Opens the table of contents of a help file in one of the window types that the file itself defines. The
// viewer is a window of its own that stays open beside the program's. Nothing is shown, and nothing is
// reported, when the viewer or the file cannot be opened.
void ShowHelp(std::int16_t kind, const std::wstring& window);

// Closes what ShowHelp() has opened. The viewer's windows belong to the program's process: those that are
// still open when it ends can bring it down.
void CloseHelp();

}  // namespace lindrel
