// What opening an address would do. A book can come from anywhere, and the shell that opens addresses starts
// programs as readily as it shows pages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lindrel {

enum class AddressKind {
    Web,       // a web, FTP or mail address: the browser or the mail program opens it
    Document,  // a file or folder of this machine that is not known to be a program, but see ExtensionsOf()
    Unsure,    // a program, something on another machine, or anything else
};

// Any text may be passed. Throws only std::bad_alloc.
AddressKind Classify(std::wstring_view address);

// What the shell gets for an address. It looks for a file first unless there is a scheme, so a Web address
// without one gets "http://". In any Web address, what could end an argument on another program's command
// line is percent-encoded. Everything else stays as it is. Throws only std::bad_alloc.
std::wstring ForTheShell(std::wstring_view address);

// The extensions that the shell may go by when it opens a Document, in lower case, with their dots: that of
// the name, and any that is followed by a blank or a "#". The caller asks the system about them, since
// Windows has a list of programs' extensions of its own.
std::vector<std::wstring> ExtensionsOf(std::wstring_view address);

}  // namespace lindrel
