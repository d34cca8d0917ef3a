// What opening an address would do. A book can come from anywhere, and the shell that opens addresses starts
// programs as gladly as it shows pages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lindrel {

enum class AddressKind {
    Web,       // a web, FTP or mail address: the browser or the mail program opens it
    Document,  // a file or folder of this machine, and no program by the list in here; see ExtensionsOf
    Unsure,    // a program, something on another machine, or nobody knows what
};

AddressKind Classify(std::wstring_view address);

// The extensions that the shell may go by when it opens a Document, in lower case, with their dots: that of
// the name, and those of its beginnings that end before a blank or a "#". The system may know one for a
// program's.
std::vector<std::wstring> ExtensionsOf(std::wstring_view address);

}  // namespace lindrel
