#include "list/EmptyListText.h"

namespace lindrel {

void EmptyListText::Set(const std::wstring& text) {
    text_ = text;
    InvalidateRect(list_, nullptr, TRUE);
}

void EmptyListText::OnPaint() const {
    if (!IsShown()) return;
    const HDC canvas = GetDC(list_);
    if (canvas == nullptr) return;  // the list stays blank
    Draw(canvas);
    ReleaseDC(list_, canvas);
}

void EmptyListText::OnPrintClient(HDC canvas) const {
    if (IsShown()) Draw(canvas);
}

// The middle has moved.
void EmptyListText::OnSize() const {
    if (IsShown()) InvalidateRect(list_, nullptr, TRUE);
}

void EmptyListText::Draw(HDC canvas) const {
    constexpr UINT kFormat = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
    RECT place = Place();
    // Smooth letters drawn twice on the same ground would grow bold.
    FillRect(canvas, &place, GetSysColorBrush(COLOR_WINDOW));
    const int saved = SaveDC(canvas);
    SelectObject(canvas, reinterpret_cast<HFONT>(SendMessageW(list_, WM_GETFONT, 0, 0)));
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, GetSysColor(COLOR_WINDOWTEXT));
    InflateRect(&place, -(place.right - place.left) / 16, -(place.bottom - place.top) / 8);
    DrawTextW(canvas, text_.c_str(), -1, &place, kFormat);
    RestoreDC(canvas, saved);
}

// All but the header.
RECT EmptyListText::Place() const {
    RECT place{};
    RECT header{};
    GetClientRect(list_, &place);
    GetClientRect(ListView_GetHeader(list_), &header);
    place.top = header.bottom;
    return place;
}

}  // namespace lindrel
