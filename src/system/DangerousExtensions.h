// Files that do something when they are opened, known by their names.
#pragma once

#include <string_view>

namespace lindrel {

// Whether a file with this extension (lower case, with its dot) runs when it is opened, or makes the system
// do something else than show it. Windows has a list of its own, which is not the same on every machine.
bool IsDangerousExtension(std::wstring_view extension);

}  // namespace lindrel
