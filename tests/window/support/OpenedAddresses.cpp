#include "tests/window/support/OpenedAddresses.h"

#include <fstream>
#include <stdexcept>

#include "controls/Windows.h"
#include "tests/window/support/Polling.h"

namespace lindrel::testing {

namespace {

// Wine runs the program named here for web addresses; record-address.sh writes the file.
constexpr wchar_t kBrowserKey[] = L"Software\\Wine\\WineBrowser";
constexpr wchar_t kBrowserValue[] = L"Browsers";
constexpr char kRecord[] = "C:\\opened-addresses.txt";

}  // namespace

OpenedAddresses::OpenedAddresses() {
    static_cast<void>(DeleteFileA(kRecord));  // usually there is none
    const std::wstring script = LINDREL_SOURCE_DIR L"/tests/window/support/record-address.sh";
    const LSTATUS set = RegSetKeyValueW(HKEY_CURRENT_USER, kBrowserKey, kBrowserValue, REG_SZ, script.c_str(),
                                        static_cast<DWORD>((script.size() + 1) * sizeof(wchar_t)));
    if (set != ERROR_SUCCESS) throw std::runtime_error("the browser cannot be set");
}

OpenedAddresses::~OpenedAddresses() {
    static_cast<void>(RegDeleteKeyValueW(HKEY_CURRENT_USER, kBrowserKey, kBrowserValue));
    static_cast<void>(DeleteFileA(kRecord));
}

std::vector<std::string> OpenedAddresses::SoFar() const {
    std::vector<std::string> addresses;
    std::ifstream record(kRecord, std::ios::binary);
    // A line still being written has no end yet.
    for (std::string line; std::getline(record, line) && !record.eof();) addresses.push_back(line);
    return addresses;
}

std::vector<std::string> OpenedAddresses::WaitFor(std::size_t count) const {
    WaitUntil("an address to be opened", [&] { return SoFar().size() >= count; });
    return SoFar();
}

}  // namespace lindrel::testing
