#include "system/MsgBox.h"

#include <utility>

#include "faults/Faults.h"
#include "window/Display.h"

namespace lindrel {

namespace {

// While it lives, the next box of an owner appears over the middle of that owner; the system would put it
// into the middle of the screen.
class BoxOverOwner {
  public:
    explicit BoxOverOwner(HWND owner) : owner_(owner), outer_(std::exchange(current, this)) {
        // An owner that is not to be seen has no middle.
        if (!IsWindowVisible(owner) || IsIconic(owner)) return;
        // Without the hook the box appears where the system puts it.
        hook_ = SetWindowsHookExW(WH_CBT, &BoxOverOwner::OnHook, nullptr, GetCurrentThreadId());
    }
    ~BoxOverOwner() {
        Unhook();
        current = outer_;
    }
    BoxOverOwner(const BoxOverOwner&) = delete;
    BoxOverOwner& operator=(const BoxOverOwner&) = delete;

  private:
    // A box is activated when it has its size and before it is painted.
    static LRESULT CALLBACK OnHook(int code, WPARAM wparam, LPARAM lparam) {
        if (code == HCBT_ACTIVATE) current->OnActivate(reinterpret_cast<HWND>(wparam));
        return CallNextHookEx(nullptr, code, wparam, lparam);
    }
    void OnActivate(HWND window) {
        if (hook_ == nullptr || GetWindow(window, GW_OWNER) != owner_) return;
        Unhook();  // once: from then on the user may move it
        CentreOnOwner(window, owner_);
    }
    void Unhook() {
        if (hook_ != nullptr) UnhookWindowsHookEx(std::exchange(hook_, nullptr));
    }

    static inline thread_local BoxOverOwner* current = nullptr;

    HWND owner_;
    BoxOverOwner* outer_;  // of a box over which this one appears
    HHOOK hook_ = nullptr;
};

}  // namespace

int MsgBox(HWND owner, const std::wstring& text, UINT style, const std::wstring& title) {
    const BoxOverOwner over_owner(owner);
    const int button = MessageBoxW(owner, text.c_str(), title.c_str(), style);
    if (button == 0) throw SystemFault(L"üzenetablak megjelenítése", GetLastError());
    return button;
}

void SoundNothingToDo() {
    static_cast<void>(MessageBeep(MB_OK));  // a machine without sounds is silent
}

}  // namespace lindrel
