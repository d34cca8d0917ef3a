#include "tray/TrayArea.h"

#include <algorithm>

#include "text/BookText.h"
#include "window/Display.h"

namespace lindrel {

namespace {

constexpr wchar_t kWindowClass[] = L"TrayArea";

// The shell reports the mouse on the icon in messages with the number of an ordinary mouse move. Ordinary
// ones do no harm: an invisible control gets none, and in a designer the coordinates in a control as small as
// its picture are not the number of a mouse message.
constexpr UINT kCallbackMessage = WM_MOUSEMOVE;

// The size of the first version of the record. The fields of later versions are zero, so that a tool tip that
// fills its field ends there.
constexpr DWORD kRecordSize = NOTIFYICONDATAA_V1_SIZE;
constexpr std::size_t kTipLength = 64;
static_assert(kRecordSize == (sizeof(void*) == 4 ? 88 : 104));
static_assert(sizeof NOTIFYICONDATAA::szTip > kTipLength);

// What the shell broadcasts after it has created a taskbar, which has no icons yet.
UINT TaskbarCreated() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarCreated");
    return message;
}

// Windows would hold back the messages of a shell with fewer rights than the program.
void LetThrough(HWND window, UINT message) {
    // If it fails, the icon does not work with such a shell, and nothing else can be done about that.
    static_cast<void>(ChangeWindowMessageFilterEx(window, message, MSGFLT_ALLOW, nullptr));
}

// In the ANSI code page, in which the shell reads the record; empty if the text cannot be converted.
std::string ShellText(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(std::min(text.size(), kTipLength));
    std::string narrow(kTipLength * 4, '\0');
    const int used = WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(),
                                         static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(used));
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
            RaiseMouseEvent(lparam);
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

void TrayArea::RaiseMouseEvent(LPARAM message) const {
    std::int16_t left = 1;
    std::int16_t right = 2;
    switch (message) {
        case WM_MOUSEMOVE:
            if (MouseMove) MouseMove();
            return;
        case WM_LBUTTONDOWN:
            if (MouseDown) MouseDown(left);
            return;
        case WM_LBUTTONUP:
            if (MouseUp) MouseUp(left);
            return;
        case WM_RBUTTONDOWN:
            if (MouseDown) MouseDown(right);
            return;
        case WM_RBUTTONUP:
            if (MouseUp) MouseUp(right);
            return;
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
            if (DblClick) DblClick();
            return;
        default:
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
    const HDC dc = BeginPaint(Handle(), &paint);
    if (dc == nullptr) return;
    const SIZE size = PictureSize();
    DrawIconEx(dc, 0, 0, LoadIconW(nullptr, IDI_APPLICATION), size.cx, size.cy, 0,
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
        // If the shell refuses, it goes on showing the old icon.
        static_cast<void>(Tell(NIM_MODIFY));
    }
    Announce(L"Icon");
}

void TrayArea::SetToolTip(std::wstring_view New_ToolTip) {
    properties_.ToolTip = Trim(New_ToolTip);
    record_.uFlags = NIF_TIP;
    PutToolTip();
    // The shell refuses this while the icon is hidden, and then it has no effect.
    static_cast<void>(Tell(NIM_MODIFY));
    Announce(L"ToolTip");
}

void TrayArea::SetVisible(bool New_Visible) {
    if (New_Visible == properties_.Visible) return;
    if (!New_Visible) {
        RemoveIcon();
    } else if (Handle() != nullptr && environment_ == Environment::Running) {
        ListenForNewTaskbar();
        record_.uID = std::uniform_int_distribution<UINT>(1, 65535)(random_);
        AddIcon();
    }
    properties_.Visible = New_Visible;
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

// The shell's broadcasts do not reach child windows, so the control listens to its owner's messages.
void TrayArea::ListenForNewTaskbar() {
    owner_.Attach(GetParent(Handle()), [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == TaskbarCreated()) AddIconAgain();
        return std::nullopt;
    });
}

// With the same identifier: a taskbar that has the icon already refuses to add it but modifies it.
void TrayArea::AddIconAgain() {
    AddIcon();
    if (!taken_) taken_ = Tell(NIM_MODIFY);
    if (!taken_ && IconLost) IconLost();
}

void TrayArea::RemoveIcon() {
    // Fails if the shell has no such icon, and then there is nothing to remove.
    static_cast<void>(Tell(NIM_DELETE));
    owner_.Detach();
    taken_ = false;
}

// False if there is no shell or if it refuses.
bool TrayArea::Tell(DWORD operation) {
    return Shell_NotifyIconA(operation, &record_) != FALSE;
}

// The field holds the text, a NUL and blanks, or as much of the text as it can, without a NUL.
void TrayArea::PutToolTip() {
    std::string field = ShellText(properties_.ToolTip) + '\0';
    field.resize(kTipLength, ' ');
    std::copy(field.begin(), field.end(), record_.szTip);
}

void TrayArea::Announce(const wchar_t* name) const {
    if (PropertyChanged) PropertyChanged(name);
}

}  // namespace lindrel
