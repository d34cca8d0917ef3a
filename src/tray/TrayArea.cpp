#include "tray/TrayArea.h"

#include <algorithm>

#include "text/BookText.h"
#include "tray/TrayProtocol.h"
#include "window/Display.h"

namespace lindrel {

namespace {

constexpr wchar_t kWindowClass[] = L"TrayArea";

// The shell reports the mouse on the icon under the number of an ordinary mouse move. No ordinary one reaches
// the control's window, which the pointer is never over.
constexpr UINT kCallbackMessage = WM_MOUSEMOVE;

// The first version of the record. The fields of later ones are zero, so that a tool tip of 64 characters,
// which leaves no room for a NUL, ends there.
constexpr DWORD kRecordSize = NOTIFYICONDATAA_V1_SIZE;
static_assert(kRecordSize == (sizeof(void*) == 4 ? 88 : 104));
static_assert(sizeof NOTIFYICONDATAA::szTip > kTipLength);
static_assert(WM_MOUSEMOVE == 512 && WM_LBUTTONDOWN == 513 && WM_RBUTTONDBLCLK == 518);

// What the shell broadcasts when it has made a new taskbar, which has no icons yet.
UINT TaskbarCreated() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarCreated");
    return message;
}

// For a shell with fewer rights than the program, whose messages Windows would hold back.
void LetThrough(HWND window, UINT message) {
    // Refused, the icon is deaf to such a shell, and nothing else can be done about it.
    static_cast<void>(ChangeWindowMessageFilterEx(window, message, MSGFLT_ALLOW, nullptr));
}

// In the machine's code page, in which the shell reads the record.
std::string ShellText(std::wstring_view text) {
    if (text.empty()) return {};
    // The field keeps no more of it.
    const int length = static_cast<int>(std::min(text.size(), kTipLength));
    std::string narrow(kTipLength * 4, '\0');
    const int used = WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(),
                                         static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(used));  // 0 when it fails: an icon without a tool tip
    return narrow;
}

}  // namespace

void TrayArea::Place(HWND owner, Environment environment) {
    WNDCLASSEXW description{};
    description.lpszClassName = kWindowClass;
    environment_ = environment;
    const DWORD visible = environment == Environment::Design ? WS_VISIBLE : 0u;
    Create(description, WS_CHILD | visible, 0, owner);
    record_.cbSize = kRecordSize;
    record_.hWnd = Handle();
    LetThrough(owner, TaskbarCreated());
    LetThrough(Handle(), kCallbackMessage);
    Resize();
}

LRESULT TrayArea::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case kCallbackMessage:
            Decode(lparam);
            return 0;
        case WM_SIZE:
            if (!resizing_) Resize();
            return 0;
        case WM_PAINT:
            PaintPicture();
            return 0;
        case WM_DESTROY:
            RemoveIcon();
            return 0;
        default:
            return DefWindowProcW(Handle(), message, wparam, lparam);
    }
}

void TrayArea::Decode(LPARAM mouse_message) {
    TrayMouse mouse = TrayMouseOf(static_cast<std::uint64_t>(mouse_message));
    switch (mouse.Event) {
        case TrayEvent::MouseMove:
            if (MouseMove) MouseMove();
            return;
        case TrayEvent::MouseDown:
            if (MouseDown) MouseDown(mouse.Button);
            return;
        case TrayEvent::MouseUp:
            if (MouseUp) MouseUp(mouse.Button);
            return;
        case TrayEvent::DblClick:
            if (DblClick) DblClick();
            return;
        case TrayEvent::None:
            return;
    }
}

SIZE TrayArea::PictureSize() const {
    const UINT dpi = DpiOf(Handle());
    return {GetSystemMetricsForDpi(SM_CXSMICON, dpi), GetSystemMetricsForDpi(SM_CYSMICON, dpi)};
}

void TrayArea::Resize() {
    const SIZE size = PictureSize();
    resizing_ = true;
    SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    resizing_ = false;
}

void TrayArea::PaintPicture() const {
    PAINTSTRUCT paint{};
    const HDC canvas = BeginPaint(Handle(), &paint);
    if (canvas == nullptr) return;
    const SIZE size = PictureSize();
    DrawIconEx(canvas, 0, 0, LoadIconW(nullptr, IDI_APPLICATION), size.cx, size.cy, 0,
               GetSysColorBrush(COLOR_BTNFACE), DI_NORMAL);
    EndPaint(Handle(), &paint);
}

void TrayArea::SetIcon(Picture New_Icon) {
    properties_.Icon = New_Icon;
    if (!New_Icon) {
        SetVisible(false);
    } else if (properties_.Visible) {
        record_.uFlags = NIF_ICON;
        record_.hIcon = *New_Icon;
        // When the shell refuses, the icon that it shows stays.
        static_cast<void>(Tell(NIM_MODIFY));
    }
    Announce(L"Icon");
}

void TrayArea::SetToolTip(std::wstring_view New_ToolTip) {
    properties_.ToolTip = Trim(New_ToolTip);
    record_.uFlags = NIF_TIP;
    PutToolTip();
    // Told also while the icon is hidden; the shell refuses then, and nothing happens.
    static_cast<void>(Tell(NIM_MODIFY));
    Announce(L"ToolTip");
}

void TrayArea::SetVisible(bool New_Visible) {
    if (New_Visible == properties_.Visible) return;
    properties_.Visible = New_Visible;
    if (!New_Visible) {
        RemoveIcon();
    } else if (Handle() != nullptr && environment_ == Environment::Running) {
        record_.uID = TrayIdentifier(std::uniform_real_distribution<double>(0.0, 1.0)(random_));
        AddIcon();
        ListenForNewTaskbar();
    }
    Announce(L"Visible");
}

void TrayArea::AddIcon() {
    record_.uFlags = NIF_MESSAGE;
    record_.uCallbackMessage = kCallbackMessage;
    if (properties_.Icon.value_or(nullptr) != nullptr) {
        record_.uFlags |= NIF_ICON;
        record_.hIcon = *properties_.Icon;
    }
    if (!properties_.ToolTip.empty()) {
        record_.uFlags |= NIF_TIP;
        PutToolTip();
    }
    taken_ = Tell(NIM_ADD);
}

// The shell's broadcasts reach no child windows: the control hears them at its owner while it has an icon.
void TrayArea::ListenForNewTaskbar() {
    owner_.Attach(GetParent(Handle()), [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == TaskbarCreated()) AddIconAgain();
        return std::nullopt;
    });
}

// Under its old identifier, so that a taskbar that still has the icon refuses it but lets it be changed.
void TrayArea::AddIconAgain() {
    AddIcon();
    if (!taken_) taken_ = Tell(NIM_MODIFY);
    if (!taken_ && IconLost) IconLost();
}

void TrayArea::RemoveIcon() {
    // Refused when the shell has no such icon; then it is gone already.
    static_cast<void>(Tell(NIM_DELETE));
    owner_.Detach();
    taken_ = false;
}

// False when the shell is not there or knows no such icon; the user then sees none.
bool TrayArea::Tell(DWORD operation) {
    return Shell_NotifyIconA(operation, &record_) != FALSE;
}

void TrayArea::PutToolTip() {
    const auto field = TipField(ShellText(properties_.ToolTip));
    std::copy(field.begin(), field.end(), record_.szTip);
}

void TrayArea::Announce(const wchar_t* name) const {
    if (PropertyChanged) PropertyChanged(name);
}

}  // namespace lindrel
