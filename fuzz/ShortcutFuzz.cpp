// Reads any bytes as a shortcut file, and reads back what the export writes.

#include <cstdlib>
#include <string>
#include <string_view>

#include "export/Shortcut.h"
#include "faults/Faults.h"
#include "import/Shortcuts.h"
#include "text/TextFile.h"
#include "text/Utf8.h"

namespace lindrel {
namespace {

void Require(bool good) {
    if (!good) std::abort();
}

std::string AddressIn(std::string_view file) {
    return ShortcutAddress({file.begin(), file.end()});
}

void ReadAny(std::string_view bytes) {
    const TextFile file = TextFileOf({bytes.begin(), bytes.end()});
    const std::string_view text = file.Text();
    try {
        const std::string address = AddressIn(bytes);
        Require(address.find_first_of("\r\n") == std::string_view::npos);
        Require(file.Encoding != TextEncoding::Windows1250 || text.find(address) != std::string_view::npos);
    } catch (const EndOfFileFault&) {
        // Fewer than two lines: no line end, or nothing after it.
        const std::size_t end = text.find_first_of("\r\n");
        Require(end == std::string_view::npos || end + 1 == text.size() || text.substr(end) == "\r\n");
    } catch (const ArgumentFault&) {
        // Fewer than three characters on the second line.
        Require(text.find_first_of("\r\n") != std::string_view::npos);
    }
}

// An address whose bytes happen to be UTF-8 is taken for that.
void ReadOwn(std::string_view address) {
    if (address.find_first_of("\r\n") != std::string_view::npos || IsUtf8BeyondAscii(address)) return;
    Require(AddressIn(ShortcutFile(address)) == address);
}

}  // namespace
}  // namespace lindrel

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string bytes(data, data + size);
    lindrel::ReadAny(bytes);
    lindrel::ReadOwn(bytes);
    return 0;
}
