// What the files of the disk need of Windows: errors, paths of any length, patience with other programs.
#pragma once

#include <windows.h>

#include <string>

#include "files/Path.h"
#include "files/Patience.h"

namespace lindrel {

// Throws FileFault with the path and the system's reason for the error.
[[noreturn]] void Fail(const Path& path, DWORD error = GetLastError());

// The path as the system takes it at any length. Throws for a device, which every folder seems to have.
std::wstring SystemPath(const Path& path);

// Opens an existing file for its attributes only, whoever else has it open.
HANDLE OpenToLookAt(const std::wstring& path);

// The file that a symbolic link leads to; any other path as the system takes it. Throws FileFault when the
// link leads nowhere.
std::wstring BehindLinks(const Path& path);

// Gives a new file the attributes and the access list of the old one, if there is one.
void TakeOverAttributes(const std::wstring& from, const std::wstring& to);

// Whether an error is likely to pass because another program holds the file. That is also what "access
// denied" means for a file that is not read-only.
bool MayPass(const std::wstring& path, DWORD error);

// Tries an operation on a file, which returns the system's error, until it succeeds or does not promise to.
template <typename Operation>
DWORD Patiently(const std::wstring& path, Operation operation) {
    Patience patience(kFilePatience);
    DWORD error = ERROR_SUCCESS;
    do error = operation();
    while (error != ERROR_SUCCESS && MayPass(path, error) && patience.Pause());
    return error;
}

inline DWORD ErrorUnless(BOOL succeeded) {
    return succeeded ? ERROR_SUCCESS : GetLastError();
}

}  // namespace lindrel
