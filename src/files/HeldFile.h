// What the system's errors tell of a file that cannot be opened, replaced or removed.
#pragma once

#include <windows.h>

namespace lindrel {

// `attributes` is what GetFileAttributes returns.
constexpr bool IsReadOnlyOrFolder(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0;
}

// Whether the cause of an error may be another program that holds the file. "Access denied" may mean that
// too: for a file with these attributes, or for one that is being deleted, which has none to ask for.
// `attributes_error` is the error of asking.
constexpr bool MayPass(DWORD error, DWORD attributes, DWORD attributes_error) {
    if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_DELETE_PENDING)
        return true;
    if (error != ERROR_ACCESS_DENIED) return false;
    return attributes != INVALID_FILE_ATTRIBUTES ? !IsReadOnlyOrFolder(attributes)
                                                 : attributes_error == ERROR_ACCESS_DENIED;
}

}  // namespace lindrel
