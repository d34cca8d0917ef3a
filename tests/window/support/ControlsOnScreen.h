// What controls of the program show, read through their messages, from any thread.
#pragma once

#include <string>
#include <vector>

#include "window/Windows.h"

namespace lindrel::testing {

// The captions of a tab strip as the user reads them, "&" where "&&" stands for it.
std::vector<std::wstring> TabCaptions(HWND tab_strip);
// The text of a panel, 1-based, of a status bar.
std::wstring PanelText(HWND status_bar, int panel);

}  // namespace lindrel::testing
