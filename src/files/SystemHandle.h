// A handle of the system that closes itself.
#pragma once

#include <windows.h>

#include <utility>

namespace lindrel {

// Owns a handle for which INVALID_HANDLE_VALUE means none.
class SystemHandle {
  public:
    using Closer = BOOL(WINAPI*)(HANDLE);

    SystemHandle() = default;
    explicit SystemHandle(HANDLE handle, Closer close = &CloseHandle) : handle_(handle), close_(close) {}
    ~SystemHandle() { static_cast<void>(Close()); }  // whoever must know calls Close() before
    SystemHandle(SystemHandle&& other) noexcept { swap(other); }
    SystemHandle& operator=(SystemHandle&& other) noexcept {
        swap(other);
        return *this;
    }

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }
    // Closes the handle if it is still open. False if the system reports an error: see GetLastError().
    bool Close() { return !IsOpen() || close_(std::exchange(handle_, INVALID_HANDLE_VALUE)) != FALSE; }

  private:
    void swap(SystemHandle& other) noexcept {
        std::swap(handle_, other.handle_);
        std::swap(close_, other.close_);
    }

    HANDLE handle_ = INVALID_HANDLE_VALUE;
    Closer close_ = &CloseHandle;
};

}  // namespace lindrel
