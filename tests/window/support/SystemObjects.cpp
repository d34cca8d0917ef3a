#include "tests/window/support/SystemObjects.h"

#include <winternl.h>

#include <cstdint>
#include <ostream>
#include <set>
#include <stdexcept>

#include "window/Windows.h"

namespace lindrel::testing {

namespace {

// Windows, menus and icons share one table of at most this many places. New objects take the first free
// places, so nothing comes after a gap larger than the program ever needed at once.
constexpr std::uintptr_t kFirstUserHandle = 0x20;
constexpr std::uintptr_t kLastUserHandle = 0xFFFE;
constexpr std::uintptr_t kMostFreeInARow = 2048;
constexpr std::uintptr_t kLastHandle = 0x4000;  // many times what the program ever has

int CountWindows() {
    std::set<HWND> windows;
    const auto add = [](HWND window, LPARAM found) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId()) reinterpret_cast<std::set<HWND>*>(found)->insert(window);
        return TRUE;
    };
    const auto found = reinterpret_cast<LPARAM>(&windows);
    EnumChildWindows(GetDesktopWindow(), add, found);
    for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        add(window, found);
    return static_cast<int>(windows.size());
}

bool IsIcon(HICON handle) {
    ICONINFO icon{};
    if (!GetIconInfo(handle, &icon)) return false;
    DeleteObject(icon.hbmMask);
    if (icon.hbmColor != nullptr) DeleteObject(icon.hbmColor);
    return true;
}

void CountMenusAndIcons(SystemObjects& counts) {
    std::uintptr_t free_in_a_row = 0;
    for (auto handle = kFirstUserHandle; handle <= kLastUserHandle && free_in_a_row < kMostFreeInARow;
         handle += 2) {
        const bool is_menu = IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
        const bool is_icon = !is_menu && IsIcon(reinterpret_cast<HICON>(handle));
        if (is_menu) ++counts.Menus;
        if (is_icon) ++counts.Icons;
        const bool is_free = !is_menu && !is_icon && !IsWindow(reinterpret_cast<HWND>(handle));
        free_in_a_row = is_free ? free_in_a_row + 1 : 0;
    }
}

// The table of the process' GDI objects, which its environment block points to.
int CountGdiObjects() {
    struct Entry {
        std::uint64_t Object;
        std::uint32_t Owner;
        std::uint16_t Generation;
        std::uint8_t Type;  // 0 for a free place
        std::uint8_t Flags;
        std::uint64_t User;
    };
    static_assert(sizeof(void*) == 8 && sizeof(Entry) == 24, "the places are those of 64 bits");
    constexpr std::size_t kTableInEnvironment = 0xF8;
    constexpr int kEntries = 16384;
    const auto* const environment =
        reinterpret_cast<const std::byte*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* const table = *reinterpret_cast<const Entry* const*>(environment + kTableInEnvironment);
    if (table == nullptr) throw std::runtime_error("the process has no table of GDI objects");
    int count = 0;
    for (const Entry* entry = table; entry != table + kEntries; ++entry)
        if (entry->Type != 0) ++count;
    return count;
}

int CountHandles() {
    int count = 0;
    DWORD flags = 0;
    for (std::uintptr_t handle = 4; handle < kLastHandle; handle += 4)
        if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++count;
    return count;
}

}  // namespace

SystemObjects CountSystemObjects() {
    SystemObjects counts;
    counts.Windows = CountWindows();
    CountMenusAndIcons(counts);
    counts.GdiObjects = CountGdiObjects();
    counts.Handles = CountHandles();
    return counts;
}

void PrintTo(const SystemObjects& objects, std::ostream* out) {
    *out << objects.Windows << " windows, " << objects.Menus << " menus, " << objects.Icons << " icons, "
         << objects.GdiObjects << " GDI objects, " << objects.Handles << " handles";
}

}  // namespace lindrel::testing
