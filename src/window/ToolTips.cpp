#include "window/ToolTips.h"

#include "window/Control.h"

namespace lindrel {

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
    // Without a width tips ignore line breaks.
    SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, SHRT_MAX);
    for (const Tip& tip : waiting_) Show(window, tip);
    waiting_.clear();
}

void ToolTips::Show(HWND window, const Tip& tip) const {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window;
    tool.uId = reinterpret_cast<UINT_PTR>(tip.Control);
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (tip.Text.empty()) return;
    std::wstring shown = InLines(tip.Text, 100);
    tool.lpszText = shown.data();
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace lindrel
