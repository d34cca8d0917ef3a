// The shell with a recorder in the browser's place: what a program asks it to open is written down.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/window/support/Polling.h"
#include "tests/window/support/Text.h"

namespace lindrel::testing {

class RecordedShell {
  public:
    // Makes the recorder the handler of web addresses as long as this object lives. Throws
    // std::runtime_error.
    RecordedShell() {
        static std::atomic<int> number{0};
        file_ = (std::filesystem::temp_directory_path() /
                 (L"addresses-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number) +
                  L".txt"))
                    .wstring();
        if (!std::filesystem::exists(Recorder())) throw std::runtime_error("the recorder is not there");
        for (const wchar_t* const key : kKeys) {
            former_.push_back(Command(key));
            SetCommand(key, L"\"" + Recorder() + L"\" \"" + file_ + L"\" \"%1\"");
        }
    }
    ~RecordedShell() {
        for (std::size_t i = 0; i < former_.size(); ++i) SetCommand(kKeys[i], former_[i]);
        std::error_code ignored;  // there is no file if nothing was opened
        std::filesystem::remove(file_, ignored);
    }
    RecordedShell(const RecordedShell&) = delete;
    RecordedShell& operator=(const RecordedShell&) = delete;

    // A program that writes a file beside itself when it is started without arguments.
    static std::wstring Recorder() {
        // The drive is this machine's own root.
        return std::filesystem::path(L"Z:" LINDREL_RECORDER).make_preferred().wstring();
    }

    // Every address that was opened so far, in order.
    std::vector<std::wstring> Addresses() const {
        std::ifstream file(std::filesystem::path(file_), std::ios::binary);
        std::stringstream bytes;
        bytes << file.rdbuf();
        std::vector<std::wstring> addresses;
        // A line that is still being written has no end.
        for (std::string line; std::getline(bytes, line) && !bytes.eof();) addresses.push_back(Wide(line));
        return addresses;
    }
    // Waits for one address more than earlier calls have returned.
    std::wstring NextAddress() const {
        std::vector<std::wstring> addresses;
        WaitUntil("the shell to open an address", [&] {
            addresses = Addresses();
            return addresses.size() > returned_;
        });
        return addresses[returned_++];
    }

  private:
    static constexpr const wchar_t* kKeys[] = {L"http\\shell\\open\\command", L"https\\shell\\open\\command"};

    static std::wstring Command(const wchar_t* key) {
        wchar_t command[1024] = L"";
        DWORD bytes = sizeof command;
        if (RegGetValueW(HKEY_CLASSES_ROOT, key, nullptr, RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND,
                         nullptr, command, &bytes) != ERROR_SUCCESS)
            throw std::runtime_error("the registry knows no handler of web addresses");
        return command;
    }
    static void SetCommand(const wchar_t* key, const std::wstring& command) {
        const auto bytes = static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t));
        if (RegSetKeyValueW(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, command.c_str(), bytes) != ERROR_SUCCESS)
            throw std::runtime_error("the registry takes no handler of web addresses");
    }

    std::wstring file_;
    std::vector<std::wstring> former_;  // the handlers before
    mutable std::size_t returned_ = 0;
};

}  // namespace lindrel::testing
