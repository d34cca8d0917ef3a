#include "window/ToolTips.h"

namespace lindrel {

namespace {

TTTOOLINFOW ToolOf(HWND window, HWND control) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

// An address has no blanks to break it at, and may be longer than the screen is wide.
std::wstring InLines(const std::wstring& text) {
    constexpr std::size_t kLine = 100;
    std::wstring lines = text.substr(0, kLine);
    for (std::size_t at = kLine; at < text.size(); at += kLine) lines += L"\r\n" + text.substr(at, kLine);
    return lines;
}

}  // namespace

void ToolTips::Set(HWND window, HWND control, const std::wstring& text) {
    if (tips_ != nullptr) return Show(window, {control, text});
    std::erase_if(waiting_, [control](const Tip& tip) { return tip.Control == control; });
    if (!text.empty()) waiting_.push_back({control, text});
}

void ToolTips::OnSetCursor(HWND window) {
    if (tips_ != nullptr || waiting_.empty()) return;
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr,
                            nullptr, nullptr);
    // Any width, which also makes the tips heed line breaks.
    SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, SHRT_MAX);
    for (const Tip& tip : waiting_) Show(window, tip);
    waiting_.clear();
}

void ToolTips::Show(HWND window, const Tip& tip) const {
    TTTOOLINFOW tool = ToolOf(window, tip.Control);
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (tip.Text.empty()) return;
    std::wstring shown = InLines(tip.Text);
    tool.lpszText = shown.data();
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace lindrel
