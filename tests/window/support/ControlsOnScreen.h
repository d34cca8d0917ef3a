// What controls of the program show, read through their messages, from any thread.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// The captions of a tab strip as the user reads them, with "&" for "&&".
inline std::vector<std::wstring> TabCaptions(HWND tab_strip) {
    std::vector<std::wstring> captions;
    for (int tab = 0; tab < TabCtrl_GetItemCount(tab_strip); ++tab) {
        std::wstring text(32768, L'\0');
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        if (!TabCtrl_GetItem(tab_strip, tab, &item)) return captions;
        std::wstring caption = item.pszText;
        for (auto at = caption.find(L"&&"); at != std::wstring::npos; at = caption.find(L"&&", at + 1))
            caption.erase(at, 1);
        captions.push_back(caption);
    }
    return captions;
}

// The text of a status bar's panel, 1-based.
inline std::wstring PanelText(HWND status_bar, int panel) {
    const auto item = static_cast<WPARAM>(panel - 1);
    const std::size_t length = LOWORD(SendMessageW(status_bar, SB_GETTEXTLENGTHW, item, 0));
    std::wstring text(length + 1, L'\0');
    SendMessageW(status_bar, SB_GETTEXTW, item, reinterpret_cast<LPARAM>(text.data()));
    text.resize(length);
    return text;
}

}  // namespace lindrel::testing
