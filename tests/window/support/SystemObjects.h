// What the process holds of the system: windows, menus, icons, objects to draw with, handles. Something that
// is done again and again must leave the numbers as they were.
#pragma once

#include <iosfwd>

namespace lindrel::testing {

struct SystemObjects {
    int Windows = 0;
    int Menus = 0;
    int Icons = 0;       // and cursors
    int GdiObjects = 0;  // fonts, brushes, bitmaps, device contexts, ...
    int Handles = 0;     // files, events, threads, ...
    bool operator==(const SystemObjects&) const = default;
};
void PrintTo(const SystemObjects& objects, std::ostream* out);

// Counts them now. Wine has no numbers of its own (GetGuiResources and GetProcessHandleCount give 0), so this
// asks for every number that a handle can have.
SystemObjects CountSystemObjects();

}  // namespace lindrel::testing
