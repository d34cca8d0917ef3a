#include "system/MsgBox.h"

#include <utility>

#include "faults/LastError.h"
#include "window/Display.h"

namespace lindrel {

namespace {

// Centres the next message box of an owner on that owner. Windows would centre it on the screen.
class BoxOverOwner {
  public:
    explicit BoxOverOwner(HWND owner) : owner_(owner), outer_(std::exchange(current, this)) {
        if (!IsWindowVisible(owner) || IsIconic(owner)) return;
        // If this fails the box appears where Windows puts it.
        hook_ = SetWindowsHookExW(WH_CBT, &BoxOverOwner::OnHook, nullptr, GetCurrentThreadId());
    }
    ~BoxOverOwner() {
        Unhook();
        current = outer_;
    }
    BoxOverOwner(const BoxOverOwner&) = delete;
    BoxOverOwner& operator=(const BoxOverOwner&) = delete;

  private:
    // A box has its size when it is activated, and has not been painted yet.
    static LRESULT CALLBACK OnHook(int code, WPARAM wparam, LPARAM lparam) {
        if (code == HCBT_ACTIVATE) current->OnActivate(reinterpret_cast<HWND>(wparam));
        return CallNextHookEx(nullptr, code, wparam, lparam);
    }
    void OnActivate(HWND window) {
        if (hook_ == nullptr || GetWindow(window, GW_OWNER) != owner_) return;
        Unhook();  // once; after that the user may move it
        CentreOnOwner(window, owner_);
    }
    void Unhook() {
        if (hook_ != nullptr) UnhookWindowsHookEx(std::exchange(hook_, nullptr));
    }

    static inline thread_local BoxOverOwner* current = nullptr;

    HWND owner_;
    BoxOverOwner* outer_;  // of the box that is open already, or nullptr
    HHOOK hook_ = nullptr;
};

}  // namespace

int MsgBox(HWND owner, const std::wstring& text, UINT style, const std::wstring& title) {
    const BoxOverOwner over_owner(owner);
    const int button = MessageBoxW(owner, text.c_str(), title.c_str(), style);
    if (button == 0) ThrowLastError(L"üzenetablak megjelenítése");
    return button;
}

}  // namespace lindrel
