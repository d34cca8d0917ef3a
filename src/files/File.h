// Files of the disk, open or not. What in the core depends on the operating system is in the sources that end
// in _win32 and _posix.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "files/Path.h"

namespace lindrel {

// What tells whether another program has changed a file since: its size in bytes, the time of its last change
// in the system's units, and which file of the disk it is.
struct FileState {
    std::uint64_t Size = 0;
    std::uint64_t Time = 0;
    std::uint64_t Volume = 0;
    std::uint64_t Index = 0;
    friend bool operator==(const FileState&, const FileState&) = default;
};

// Nothing when there is no file, or it cannot be looked at. Does not throw.
std::optional<FileState> StateOf(const Path& path);

// An open file. All functions throw FileFault with the path and the system's reason. Paths may be longer than
// 260 characters. Opening, replacing and removing a file that another program holds is tried for up to two
// seconds (kFilePatience). On Windows a device, such as "nul.lnd", is refused, so that nothing vanishes
// there.
class File {
  public:
    // Opens an existing file, which other programs may go on writing, renaming or deleting.
    static File ForReading(const Path& path);
    // Creates a file, or empties an existing one. Other programs may read it at the same time.
    static File ForWriting(const Path& path);
    // Creates a temporary file; Replace() puts it in the place of the file at `path`, which need not exist.
    // Refuses to replace a folder, a read-only file or a link that leads nowhere. A symbolic link stays, and
    // the file that it leads to is replaced.
    //
    // The temporary file stands in the folder of the file and has a name made from its name, always the same
    // and short, so that every file that can be opened can be replaced. One that a killed program has left is
    // taken over; as long as another program writes it, this one waits.
    static File ForReplacing(const Path& path);

    // Closes the file if it is still open, and removes a temporary file that was not moved. Does not throw.
    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    // In bytes, at most PTRDIFF_MAX.
    std::size_t Size() const;
    // Fills the buffer and returns the number of bytes read, which is smaller only at the end of the file.
    std::size_t Read(std::span<char> buffer);
    void Write(std::string_view bytes);
    void Close();
    // Flushes the temporary file to the disk, closes it and moves it to the path in one step, so that there
    // is always either the old file or the complete new one. The new one takes over what the old one had: on
    // Windows attributes and access list, elsewhere the mode bits. Other names of the old file (hard links)
    // keep the old content.
    void Replace();

  private:
    File(Path path, std::intptr_t handle, Path target = {}, Path temporary = {});

    Path path_;             // as the caller knows it, for faults
    std::intptr_t handle_;  // the system's handle, -1 when closed
    Path target_;
    Path temporary_;  // empty when there is none to remove
};

}  // namespace lindrel
