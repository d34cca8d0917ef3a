// The help file and the system's viewer for it.
#pragma once

#include <cstdint>
#include <string>

namespace lindrel {

// Full path of a help file, whether or not it exists: lnd.chm in the program's folder for kind 1, empty for
// any other kind.
std::wstring HelpFilePath(std::int16_t kind);

// Opens the table of contents of a help file in a window of a type that the file defines. The window stays
// open beside the program's. Does nothing if the viewer is not installed; the viewer itself reports a file
// that it cannot open.
void ShowHelp(std::int16_t kind, const std::wstring& window);

// Closes what ShowHelp has opened. The viewer's windows belong to the program's process, which can crash at
// its end if they are still open.
void CloseHelp();

}  // namespace lindrel
