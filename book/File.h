// An open file. Everything in the core that depends on the operating system is in File_win32.cpp and
// File_posix.cpp. All functions throw FileFault with the path and the system's reason.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace lindrel {

// A path as text for the user.
std::wstring WideText(const std::filesystem::path& path);

class File {
  public:
    // Opens an existing file. Other programs may read it at the same time.
    static File ForReading(const std::filesystem::path& path);
    // Creates a file, or empties an existing one. Other programs may read it at the same time.
    static File ForWriting(const std::filesystem::path& path);
    // Creates a temporary file next to `path`; Replace() moves it there. Refuses to replace a read-only file.
    // There need not be a file at `path`.
    static File ForReplacing(const std::filesystem::path& path);

    // Closes the file if it is still open, and removes a temporary file that was not moved. Does not throw.
    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    // In bytes.
    std::size_t Size() const;
    // Fills the buffer and returns the number of bytes read, which is smaller only at the end of the file.
    std::size_t Read(std::span<char> buffer);
    void Write(std::string_view bytes);
    void Close();
    // Flushes the temporary file to the disk, closes it and moves it to the path in one step, so that there
    // is always either the old file or the complete new one.
    void Replace();

  private:
    File(std::filesystem::path path, std::intptr_t handle, std::filesystem::path temporary = {});

    std::filesystem::path path_;
    std::intptr_t handle_;             // the system's handle, -1 when closed
    std::filesystem::path temporary_;  // empty when there is none to remove
};

}  // namespace lindrel
