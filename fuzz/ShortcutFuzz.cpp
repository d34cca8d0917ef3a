// Reads any bytes as a shortcut file, checks the addresses of files in a plain model against a second reader,
// and reads back what the export writes.

#include <string>
#include <vector>

#include "export/Shortcut.h"
#include "fuzz/PlainText.h"
#include "import/Shortcuts.h"

namespace lindrel::fuzz {
namespace {

std::string PlainAddress(const std::string& file) {
    const std::vector<std::string> lines = LinesOf(file);
    if (lines.size() < 2) throw EndOfFileFault();
    const std::size_t key = Lower(lines[1]).find("url=");
    const std::size_t address = key == std::string::npos ? 3 : key + 4;
    if (lines[1].size() < address) throw ArgumentFault();
    return AddressOf(lines[1].substr(address));
}

auto AddressIn(const std::string& file) {
    return Outcome([&] { return ShortcutAddress({file.begin(), file.end()}); });
}

}  // namespace
}  // namespace lindrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace lindrel;
    using namespace lindrel::fuzz;
    const std::string bytes(data, data + size);
    Require(AddressIn(bytes).first.find_first_of("\r\n") == std::string::npos);

    const std::string plain = Masked(bytes, kForeign);
    const auto expected = Outcome([&] { return PlainAddress(plain); });
    Require(AddressIn(InUtf8(plain)) == expected);
    for (const bool big_endian : {false, true}) Require(AddressIn(InUtf16(plain, big_endian)) == expected);

    // 0xFF is in no UTF-8 text: the address is in Windows-1250, as the export writes it.
    const std::string address = '\xFF' + bytes.substr(0, bytes.find_first_of("\r\n"));
    Require(AddressIn(ShortcutFile(address)) == std::pair(address, 0));
    return 0;
}
