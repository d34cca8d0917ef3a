// The system's headers, in the one order that works.
#pragma once

#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>
