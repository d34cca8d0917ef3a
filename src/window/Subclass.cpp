#include "window/Subclass.h"

#include <utility>

#include "faults/Faults.h"
#include "faults/PendingFault.h"

namespace lindrel {

void Subclass::Attach(HWND window, Handler handler) {
    handler_ = std::move(handler);
    // An id of its own, so that a window can have several.
    const auto self = reinterpret_cast<UINT_PTR>(this);
    if (!SetWindowSubclass(window, &Subclass::Procedure, self, self))
        throw SystemFault(L"egy ablak üzeneteinek figyelése", 0);
    window_ = window;
}

void Subclass::Detach() {
    if (window_ == nullptr) return;
    RemoveWindowSubclass(window_, &Subclass::Procedure, reinterpret_cast<UINT_PTR>(this));
    window_ = nullptr;
}

LRESULT CALLBACK Subclass::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                     DWORD_PTR data) {
    auto* const self = reinterpret_cast<Subclass*>(data);
    using Answer = std::optional<LRESULT>;
    const Answer answer = Guarded<Answer>(0, [&] { return self->handler_(message, wparam, lparam); });
    // The last message always reaches the window.
    if (message == WM_NCDESTROY)
        self->Detach();
    else if (answer)
        return *answer;
    return DefSubclassProc(window, message, wparam, lparam);
}

}  // namespace lindrel
