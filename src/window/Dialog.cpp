#include "window/Dialog.h"

#include <cstdlib>
#include <vector>

#include "faults/LastError.h"
#include "faults/PendingFault.h"
#include "window/Display.h"

namespace lindrel {

namespace {

constexpr UINT kApplyResolution = WM_APP;

// A DIALOGEX template begins with 13 words: version, signature, help id, extended style, style, number of
// items and bounds. Then come menu, window class and title, each a text or 0xFFFF and a number, and the
// font's size, weight, style and face. The items start at a multiple of 4 bytes.
constexpr int kFixedWords = 13;

const WORD* AfterTextOrNumber(const WORD* at) {
    if (*at == 0xFFFF) return at + 2;
    while (*at != 0) ++at;
    return at + 1;
}

// The template from the resources with the user's message font instead of its own; the dialog manager scales
// the dialog to that font.
std::vector<WORD> TemplateInMessageFont(HINSTANCE module, int template_id) {
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(template_id), RT_DIALOG);
    const HGLOBAL loaded = resource != nullptr ? LoadResource(module, resource) : nullptr;
    const auto* const base = static_cast<const WORD*>(loaded != nullptr ? LockResource(loaded) : nullptr);
    if (base == nullptr) ThrowLastError(L"párbeszédablak betöltése", std::to_wstring(template_id));

    const WORD* font = base + kFixedWords;
    for (int text = 0; text < 3; ++text) font = AfterTextOrNumber(font);
    constexpr int kSizeWeightStyle = 3;
    const WORD* items = AfterTextOrNumber(font + kSizeWeightStyle);
    if ((items - base) % 2 != 0) ++items;

    const UINT dpi = GetDpiForSystem();
    const LOGFONTW message_font = MessageFont(dpi);
    std::vector<WORD> changed(base, font);
    changed.push_back(static_cast<WORD>(MulDiv(std::abs(message_font.lfHeight), 72, static_cast<int>(dpi))));
    changed.push_back(static_cast<WORD>(message_font.lfWeight));
    changed.push_back(static_cast<WORD>(message_font.lfItalic | message_font.lfCharSet << 8));
    for (const wchar_t* face = message_font.lfFaceName; *face != 0; ++face)
        changed.push_back(static_cast<WORD>(*face));
    changed.push_back(0);
    if (changed.size() % 2 != 0) changed.push_back(0);
    changed.insert(changed.end(), items, base + SizeofResource(module, resource) / sizeof(WORD));
    return changed;
}

// Disables the owner while the dialog is open, then destroys the dialog.
class ModalState {
  public:
    ModalState(HWND owner, const HWND& dialog)
        : owner_(owner), dialog_(dialog), was_disabled_(EnableWindow(owner, FALSE) != FALSE) {}
    ~ModalState() {
        // In this order, or Windows would activate another program's window.
        if (!was_disabled_) EnableWindow(owner_, TRUE);
        if (dialog_ != nullptr) DestroyWindow(dialog_);
    }
    ModalState(const ModalState&) = delete;
    ModalState& operator=(const ModalState&) = delete;

  private:
    HWND owner_;
    const HWND& dialog_;
    bool was_disabled_;
};

}  // namespace

void Dialog::ShowModal(HWND owner) {
    const ModalState modal(owner, handle_);
    Create(owner);
    RunModalLoop();
    Form_Unload();
}

void Dialog::Create(HWND owner) {
    const HINSTANCE module = GetModuleHandleW(nullptr);
    const std::vector<WORD> dialog_template = TemplateInMessageFont(module, template_id_);
    ending_ = false;
    const HWND dialog =
        CreateDialogIndirectParamW(module, reinterpret_cast<const DLGTEMPLATE*>(dialog_template.data()),
                                   owner, &Dialog::Procedure, reinterpret_cast<LPARAM>(this));
    ThrowPendingFault();
    if (dialog == nullptr) ThrowLastError(L"párbeszédablak létrehozása", std::to_wstring(template_id_));
    scroll_.Remember(handle_);
    CentreOnOwner(handle_, owner);
    scroll_.Fit();
    if (!ending_) ShowWindow(handle_, SW_SHOW);
}

void Dialog::RunModalLoop() {
    while (!ending_) {
        MSG message{};
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got == -1) ThrowLastError(L"üzenet fogadása");
        if (got == 0) {
            // The program is ending: let the outer loop end too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        const bool own = message.hwnd == handle_ || IsChild(handle_, message.hwnd);
        if (!(own && PreTranslate(message)) && !IsDialogMessageW(handle_, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        ThrowPendingFault();
        scroll_.Follow(GetFocus());
    }
}

INT_PTR CALLBACK Dialog::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_INITDIALOG) {
        auto* const dialog = reinterpret_cast<Dialog*>(lparam);
        dialog->handle_ = handle;
        SetWindowLongPtrW(handle, DWLP_USER, lparam);
    }
    auto* const dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(handle, DWLP_USER));
    if (dialog == nullptr) return FALSE;
    if (message == WM_NCDESTROY) {
        dialog->handle_ = nullptr;
        return FALSE;
    }
    return Guarded<INT_PTR>(FALSE, [&] { return dialog->Handle(message, wparam, lparam); });
}

INT_PTR Dialog::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
    LRESULT result = 0;
    if (OnMessage(message, wparam, lparam, result)) {
        SetWindowLongPtrW(handle_, DWLP_MSGRESULT, result);
        return TRUE;
    }
    switch (message) {
        case WM_INITDIALOG: {
            const HWND before = GetFocus();
            Form_Load();
            ApplyResolution(DpiOf(handle_));
            return GetFocus() == before ? TRUE : FALSE;
        }
        case WM_DPICHANGED:
            // Posted, to come after the dialog manager's own work. If the queue is full, the manager's font
            // stays.
            static_cast<void>(PostMessageW(handle_, kApplyResolution, LOWORD(wparam), 0));
            return FALSE;
        case kApplyResolution:
            ApplyResolution(static_cast<UINT>(wparam));
            scroll_.Fit();
            return TRUE;
        case WM_ACTIVATE:
            if (LOWORD(wparam) == WA_INACTIVE) left_focus_ = GetFocus();
            return FALSE;
        case WM_COMMAND:
            if (HIWORD(wparam) == EN_SETFOCUS && GetsFocusBack(reinterpret_cast<HWND>(lparam))) return TRUE;
            OnCommand(LOWORD(wparam), HIWORD(wparam));
            return TRUE;
        case WM_NOTIFY:
            SetWindowLongPtrW(handle_, DWLP_MSGRESULT, OnNotify(*reinterpret_cast<const NMHDR*>(lparam)));
            return TRUE;
        default:
            return scroll_.OnMessage(message, wparam) ? TRUE : OnSystemMessage(message);
    }
}

INT_PTR Dialog::OnSystemMessage(UINT message) {
    switch (message) {
        case WM_SYSCOLORCHANGE:
            PassOnColours(handle_);
            return TRUE;
        case WM_SETCURSOR:
            tool_tips_.OnSetCursor(handle_);
            return FALSE;
        case WM_CLOSE:
            // From another program, while a box of the dialog is open: a handler is still running.
            return IsWindowEnabled(handle_) ? FALSE : TRUE;
        case WM_QUERYENDSESSION: {
            const bool holds = HoldsSession();
            if (holds) session_.Hold(handle_, L"Egy párbeszédablak még nyitva van.");
            SetWindowLongPtrW(handle_, DWLP_MSGRESULT, holds ? FALSE : TRUE);
            return TRUE;
        }
        case WM_ENDSESSION:
            session_.Release();
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace lindrel
