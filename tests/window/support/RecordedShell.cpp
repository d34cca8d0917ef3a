#include "tests/window/support/RecordedShell.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "tests/window/support/Polling.h"

namespace lindrel::testing {

namespace {

constexpr const wchar_t* kSchemes[] = {L"http", L"https"};

std::wstring CommandKey(const std::wstring& scheme) {
    return scheme + L"\\shell\\open\\command";
}

std::wstring RecorderPath() {
    // Of this machine's own root, which Wine shows as a drive.
    const std::filesystem::path path = std::filesystem::path(L"Z:" LINDREL_RECORDER).make_preferred();
    if (!std::filesystem::exists(path)) throw std::runtime_error("the recorder of addresses is not there");
    return path.wstring();
}

std::wstring CommandOf(const std::wstring& scheme) {
    wchar_t command[1024] = L"";
    DWORD bytes = sizeof command;
    if (RegGetValueW(HKEY_CLASSES_ROOT, CommandKey(scheme).c_str(), nullptr,
                     RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, nullptr, command,
                     &bytes) != ERROR_SUCCESS)
        throw std::runtime_error("the registry knows no handler of web addresses");
    return command;
}

void SetCommand(const std::wstring& scheme, const std::wstring& command) {
    const auto bytes = static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CLASSES_ROOT, CommandKey(scheme).c_str(), nullptr, REG_SZ, command.c_str(),
                        bytes) != ERROR_SUCCESS)
        throw std::runtime_error("the registry takes no handler of web addresses");
}

std::wstring Wide(const std::string& utf8) {
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

}  // namespace

RecordedShell::RecordedShell() {
    static std::atomic<int> number{0};
    file_ =
        (std::filesystem::temp_directory_path() / (L"addresses-" + std::to_wstring(GetCurrentProcessId()) +
                                                   L"-" + std::to_wstring(++number) + L".txt"))
            .wstring();
    for (const wchar_t* const scheme : kSchemes) {
        former_.push_back(CommandOf(scheme));
        SetCommand(scheme, L"\"" + RecorderPath() + L"\" \"" + file_ + L"\" \"%1\"");
    }
}

RecordedShell::~RecordedShell() {
    for (std::size_t i = 0; i < former_.size(); ++i) SetCommand(kSchemes[i], former_[i]);
    std::error_code gone_already;
    std::filesystem::remove(file_, gone_already);
}

std::vector<std::wstring> RecordedShell::Addresses() const {
    std::ifstream file(std::filesystem::path(file_), std::ios::binary);
    std::stringstream bytes;
    bytes << file.rdbuf();
    std::vector<std::wstring> addresses;
    // A line that is still being written has no end.
    for (std::string line; std::getline(bytes, line) && !bytes.eof();) addresses.push_back(Wide(line));
    return addresses;
}

std::wstring RecordedShell::NextAddress() const {
    std::vector<std::wstring> addresses;
    WaitUntil("the shell to open an address", [&] {
        addresses = Addresses();
        return addresses.size() > given_;
    });
    return addresses[given_++];
}

}  // namespace lindrel::testing
