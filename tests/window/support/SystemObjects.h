// What the process holds of the system: windows, menus, icons, objects to draw with, handles. Whatever is
// done again and again must leave the numbers as they were.
#pragma once

#include <winternl.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <stdexcept>

#include "window/Windows.h"

namespace lindrel::testing {

// Wine has no numbers of its own (GetGuiResources and GetProcessHandleCount return 0), so each function asks
// for every number that a handle can have.
struct SystemObjects {
    int Windows = 0;
    int Menus = 0;
    int Icons = 0;       // and cursors
    int GdiObjects = 0;  // fonts, brushes, bitmaps, device contexts, ...
    int Handles = 0;     // files, events, threads, ...
    bool operator==(const SystemObjects&) const = default;

    // Windows, menus and icons share one table. New objects take its first free entries, so nothing comes
    // after a gap larger than the program ever needed at once.
    void CountUserObjects() {
        constexpr std::uintptr_t kFirst = 0x20;
        constexpr std::uintptr_t kLast = 0xFFFE;
        constexpr int kLargestGap = 2048;
        int gap = 0;
        for (auto handle = kFirst; handle <= kLast && gap < kLargestGap; handle += 2) {
            const bool is_window = IsWindow(reinterpret_cast<HWND>(handle)) != FALSE;
            const bool is_menu = IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
            const bool is_icon = !is_window && !is_menu && IsIcon(reinterpret_cast<HICON>(handle));
            gap = is_window || is_menu || is_icon ? 0 : gap + 1;
            if (is_menu) ++Menus;
            if (is_icon) ++Icons;
        }
    }
    void CountWindows() {
        const auto count = [](HWND window, LPARAM windows) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == GetCurrentProcessId()) ++*reinterpret_cast<int*>(windows);
            return TRUE;
        };
        const auto windows = reinterpret_cast<LPARAM>(&Windows);
        EnumChildWindows(GetDesktopWindow(), count, windows);
        for (HWND window = nullptr;
             (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
            count(window, windows);
    }
    // In the table of the process's GDI objects, to which its environment block points.
    void CountGdiObjects() {
        struct Entry {
            std::uint64_t Object;
            std::uint32_t Owner;
            std::uint16_t Generation;
            std::uint8_t Type;  // 0 for a free entry
            std::uint8_t Flags;
            std::uint64_t User;
        };
        static_assert(sizeof(void*) == 8 && sizeof(Entry) == 24, "the offsets are those of 64 bits");
        constexpr std::size_t kTableInEnvironment = 0xF8;
        constexpr int kEntries = 16384;
        const auto* const environment =
            reinterpret_cast<const std::byte*>(NtCurrentTeb()->ProcessEnvironmentBlock);
        const auto* const table = *reinterpret_cast<const Entry* const*>(environment + kTableInEnvironment);
        if (table == nullptr) throw std::runtime_error("the process has no table of GDI objects");
        for (const Entry* entry = table; entry != table + kEntries; ++entry)
            if (entry->Type != 0) ++GdiObjects;
    }
    void CountHandles() {
        constexpr std::uintptr_t kLast = 0x4000;  // many times what the program ever has
        DWORD flags = 0;
        for (std::uintptr_t handle = 4; handle < kLast; handle += 4)
            if (GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags)) ++Handles;
    }

  private:
    static bool IsIcon(HICON handle) {
        ICONINFO icon{};
        if (!GetIconInfo(handle, &icon)) return false;
        DeleteObject(icon.hbmMask);
        if (icon.hbmColor != nullptr) DeleteObject(icon.hbmColor);
        return true;
    }
};

inline SystemObjects CountSystemObjects() {
    SystemObjects counts;
    counts.CountWindows();
    counts.CountUserObjects();
    counts.CountGdiObjects();
    counts.CountHandles();
    return counts;
}

inline void PrintTo(const SystemObjects& objects, std::ostream* out) {
    *out << objects.Windows << " windows, " << objects.Menus << " menus, " << objects.Icons << " icons, "
         << objects.GdiObjects << " GDI objects, " << objects.Handles << " handles";
}

}  // namespace lindrel::testing
