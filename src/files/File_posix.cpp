#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Patience.h"
#include "files/TemporaryName.h"

namespace lindrel {

namespace {

[[noreturn]] void Fail(const Path& path) {
    const std::string reason = std::strerror(errno);
    throw FileFault(WideText(path), std::wstring(reason.begin(), reason.end()));
}

int Opened(const Path& path, int handle) {
    if (handle < 0) Fail(path);
    return handle;
}

int Native(std::intptr_t handle) {
    return static_cast<int>(handle);
}

// The file that a symbolic link leads to; any other path as it is.
Path BehindLinks(const Path& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
    char* const real = ::realpath(path.c_str(), nullptr);
    if (real == nullptr) Fail(path);
    Path target = real;
    std::free(real);
    return target;
}

// The mode bits for the file that replaces the one at a path. Where there is none, the user's mask decides.
std::optional<mode_t> ModeOfReplaced(const Path& path, const Path& target) {
    struct stat old {};
    if (::stat(target.c_str(), &old) != 0) return std::nullopt;
    errno = S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
    if (!S_ISREG(old.st_mode)) Fail(path);
    errno = EACCES;  // root may write any file, but does not want to write a read-only book
    if ((old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || ::access(target.c_str(), W_OK) != 0) Fail(path);
    return old.st_mode & 07777;
}

// Whether an open file still has that name, and not only another that was made there since.
bool StandsAt(const Path& path, int handle) {
    struct stat open {};
    struct stat there {};
    return ::fstat(handle, &open) == 0 && ::lstat(path.c_str(), &there) == 0 && open.st_dev == there.st_dev &&
           open.st_ino == there.st_ino;
}

bool Lock(int handle) {
    return ::flock(handle, LOCK_EX | LOCK_NB) == 0;
}

// Removes a temporary file that no living program has locked.
void RemoveLeftover(const Path& path) {
    const int handle = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (handle < 0) return;
    if (Lock(handle) && StandsAt(path, handle)) ::unlink(path.c_str());
    ::close(handle);
}

// Returns -1 and sets errno when that fails. Whoever writes the file holds a lock on it.
int CreateTemporary(const Path& path, mode_t mode) {
    Patience patience(kFilePatience);
    do {
        const int handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (handle >= 0) {
            if (Lock(handle) && StandsAt(path, handle)) return handle;
            ::close(handle);  // taken for a leftover before it was locked
            continue;
        }
        if (errno != EEXIST) return -1;
        RemoveLeftover(path);
        errno = EEXIST;
    } while (patience.Pause());
    return -1;
}

}  // namespace

std::wstring WideText(const Path& path) {
    // Not wstring(), which depends on the locale. File names are UTF-8 here.
    const std::u32string characters = path.u32string();
    return {characters.begin(), characters.end()};
}

Path PathFrom(std::wstring_view text) {
    return std::u32string(text.begin(), text.end());
}

Path Joined(const Path& folder, const Path& name) {
    return folder / name;
}

std::optional<FileState> StateOf(const Path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    constexpr std::uint64_t kNanoseconds = 1'000'000'000;
    return FileState{static_cast<std::uint64_t>(status.st_size),
                     static_cast<std::uint64_t>(status.st_mtim.tv_sec) * kNanoseconds +
                         static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
                     status.st_dev, status.st_ino};
}

File::File(Path path, std::intptr_t handle, Path target, Path temporary)
    : path_(std::move(path)), handle_(handle), target_(std::move(target)), temporary_(std::move(temporary)) {}

File File::ForReading(const Path& path) {
    return {path, Opened(path, ::open(path.c_str(), O_RDONLY | O_CLOEXEC))};
}

File File::ForWriting(const Path& path) {
    return {path, Opened(path, ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))};
}

File File::ForReplacing(const Path& path) {
    const Path target = BehindLinks(path);
    const mode_t mode = ModeOfReplaced(path, target).value_or(0666);
    const Path temporary = target.parent_path() / TemporaryName<char>(target.filename().native());
    return {path, Opened(path, CreateTemporary(temporary, mode)), target, temporary};
}

File::~File() {
    if (handle_ >= 0) ::close(Native(handle_));
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

std::size_t File::Size() const {
    struct stat status {};
    if (::fstat(Native(handle_), &status) != 0) Fail(path_);
    return static_cast<std::size_t>(status.st_size);
}

std::size_t File::Read(std::span<char> buffer) {
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t got = ::read(Native(handle_), buffer.data() + done, buffer.size() - done);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) Fail(path_);
        if (got == 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void File::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = ::write(Native(handle_), bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) Fail(path_);
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
}

void File::Close() {
    if (::close(Native(std::exchange(handle_, -1))) != 0) Fail(path_);
}

void File::Replace() {
    const std::optional<mode_t> mode = ModeOfReplaced(path_, target_);
    if (mode && ::fchmod(Native(handle_), *mode) != 0) Fail(path_);
    if (::fsync(Native(handle_)) != 0) Fail(path_);
    if (::rename(temporary_.c_str(), target_.c_str()) != 0) Fail(path_);
    temporary_.clear();
    // Only now, since another program could take an unlocked temporary file for a leftover. All of it is on
    // the disk, so that it does not matter how closing goes.
    ::close(Native(std::exchange(handle_, -1)));
}

}  // namespace lindrel
