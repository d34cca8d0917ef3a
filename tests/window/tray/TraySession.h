// A tray icon on a window of its own, with a recorder in the shell's place.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/window/support/ReplacedImport.h"
#include "tray/TrayArea.h"

namespace lindrel::testing {

// One call of the shell with everything that its record holds.
struct ShellCall {
    DWORD Operation = 0;
    DWORD Size = 0;
    HWND Window = nullptr;
    UINT Identifier = 0;
    UINT Flags = 0;
    UINT Message = 0;
    HICON Icon = nullptr;
    std::string Tip;  // the 64 characters of the field
    bool operator==(const ShellCall&) const = default;
};

inline void PrintTo(const ShellCall& call, std::ostream* out) {
    *out << "\n  operation " << call.Operation << " size " << call.Size << " window " << call.Window << " id "
         << call.Identifier << " flags " << call.Flags << " message " << call.Message << " icon " << call.Icon
         << " tip [" << ::testing::PrintToString(call.Tip) << "]";
}

class OwnerWindow {
  public:
    OwnerWindow()
        : window_(CreateWindowExW(0, L"STATIC", L"tulajdonos", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr,
                                  nullptr, nullptr, nullptr)) {
        if (window_ == nullptr) throw std::runtime_error("no window");
    }
    ~OwnerWindow() { Close(); }
    OwnerWindow(const OwnerWindow&) = delete;
    OwnerWindow& operator=(const OwnerWindow&) = delete;
    HWND Handle() const { return window_; }
    void Close() {
        if (window_ != nullptr) DestroyWindow(std::exchange(window_, nullptr));
    }

  private:
    HWND window_;
};

class TraySession : public ::testing::Test {
  protected:
    using Call = ShellCall;
    using Texts = std::vector<std::wstring>;
    static constexpr DWORD kSize = sizeof(void*) == 4 ? 88 : 104;

    TraySession() {
        calls.clear();
        accepted.clear();
        control->PropertyChanged = [this](const wchar_t* name) { changed.emplace_back(name); };
        control->Place(owner.Handle());
        window = control->Handle();
    }

    // The calls since it was last asked for them.
    static std::vector<Call> Taken() { return std::exchange(calls, {}); }
    // The operations that the shell does not refuse from here on.
    static void Accept(std::vector<DWORD> operations) { accepted = std::move(operations); }
    // From here on calls go to the system's shell.
    void UseTheRealShell() { recorder.reset(); }

    static std::string Padded(const std::string& tip) {
        const std::string field = tip + '\0';
        return field + std::string(64 - field.size(), ' ');
    }
    Call Expected(DWORD operation, UINT identifier, UINT flags, UINT message, HICON shown,
                  const std::string& tip) const {
        return {operation, kSize, window, identifier, flags, message, shown, tip};
    }
    // Shows the icon and forgets the call; its identifier.
    UINT Show() {
        control->SetVisible(true);
        const std::vector<Call> added = Taken();
        EXPECT_EQ(added.size(), 1u);
        changed.clear();
        return added.at(0).Identifier;
    }

  private:
    static BOOL WINAPI Record(DWORD operation, NOTIFYICONDATAA* record) {
        calls.push_back({operation, record->cbSize, record->hWnd, record->uID, record->uFlags,
                         record->uCallbackMessage, record->hIcon, std::string(record->szTip, 64)});
        // A reader that goes on to a NUL finds it right behind the field.
        EXPECT_EQ(record->szTip[64], '\0');
        return std::count(accepted.begin(), accepted.end(), operation) != 0;
    }
    static inline std::vector<Call> calls;
    static inline std::vector<DWORD> accepted;  // usually none: a shell that refuses changes nothing
    std::optional<ReplacedImport> recorder{std::in_place, &Shell_NotifyIconA, &Record};

  protected:
    const HICON icon = LoadIconW(nullptr, IDI_WARNING);
    const HICON other_icon = LoadIconW(nullptr, IDI_ERROR);
    const std::string no_tip = std::string(64, '\0');
    OwnerWindow owner;
    Texts changed;
    std::unique_ptr<TrayArea> control = std::make_unique<TrayArea>();
    HWND window = nullptr;
};

}  // namespace lindrel::testing
