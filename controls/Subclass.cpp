#include "controls/Subclass.h"

#include <new>
#include <unordered_map>
#include <utility>

#include "controls/PendingFault.h"

namespace lindrel {

namespace {

constexpr UINT_PTR kId = 1;

// The first of each window that has any. Windows belong to threads.
thread_local std::unordered_map<HWND, Subclass*> firsts;

}  // namespace

Subclass::~Subclass() {
    Detach();
}

void Subclass::Attach(HWND window, Handler handler) {
    const auto found = firsts.find(window);
    Subclass* const next = found == firsts.end() ? nullptr : found->second;
    MakeFirst(window, this);
    handler_ = std::move(handler);
    next_ = next;
    window_ = window;
}

void Subclass::Detach() {
    const HWND window = std::exchange(window_, nullptr);
    if (window == nullptr) return;
    Subclass* before = firsts.at(window);
    if (before != this) {
        while (before->next_ != this) before = before->next_;
        before->next_ = next_;
    } else if (next_ != nullptr) {
        MakeFirst(window, next_);
    } else {
        RemoveWindowSubclass(window, &Subclass::Procedure, kId);
        firsts.erase(window);
    }
}

void Subclass::MakeFirst(HWND window, Subclass* first) {
    Subclass*& place = firsts[window];
    if (SetWindowSubclass(window, &Subclass::Procedure, kId, reinterpret_cast<DWORD_PTR>(first))) {
        place = first;
        return;
    }
    if (place == nullptr) firsts.erase(window);
    throw std::bad_alloc();
}

LRESULT Subclass::Default(UINT message, WPARAM wparam, LPARAM lparam) const {
    return PassOn(next_, window_, message, wparam, lparam);
}

LRESULT Subclass::PassOn(Subclass* next, HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return next != nullptr ? next->OnMessage(window, message, wparam, lparam)
                           : DefSubclassProc(window, message, wparam, lparam);
}

LRESULT Subclass::OnMessage(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    using Answer = std::optional<LRESULT>;
    const Answer answer = Guarded<Answer>(0, [&] { return handler_(message, wparam, lparam); });
    Subclass* const next = next_;
    // The last message always reaches the window.
    if (message == WM_NCDESTROY)
        Detach();
    else if (answer)
        return *answer;
    return PassOn(next, window, message, wparam, lparam);
}

LRESULT CALLBACK Subclass::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                                     DWORD_PTR first) {
    return reinterpret_cast<Subclass*>(first)->OnMessage(window, message, wparam, lparam);
}

}  // namespace lindrel
