// Reads any bytes as a shortcut file, and reads back what the export writes.

#include <cstdlib>
#include <string>
#include <string_view>

#include "book/Faults.h"
#include "export/Shortcut.h"
#include "import/Shortcuts.h"

namespace lindrel {
namespace {

void Require(bool good) {
    if (!good) std::abort();
}

void ReadAny(std::string_view file) {
    try {
        const std::string_view address = ShortcutAddress(file);
        Require(address.find_first_of("\r\n") == std::string_view::npos);
        Require(file.find(address) != std::string_view::npos);
    } catch (const EndOfFileFault&) {
        // Fewer than two lines: no line end, or nothing after it.
        const std::size_t end = file.find_first_of("\r\n");
        Require(end == std::string_view::npos || end + 1 == file.size() || file.substr(end) == "\r\n");
    } catch (const ArgumentFault&) {
        // Fewer than three characters on the second line.
        Require(file.find_first_of("\r\n") != std::string_view::npos);
    }
}

void ReadOwn(std::string_view address) {
    if (address.find_first_of("\r\n") != std::string_view::npos) return;
    const std::string file = ShortcutFile(address);
    Require(ShortcutAddress(file) == address);
}

}  // namespace
}  // namespace lindrel

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string bytes(data, data + size);
    lindrel::ReadAny(bytes);
    lindrel::ReadOwn(bytes);
    return 0;
}
