#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

#include "book/Faults.h"
#include "book/File.h"

namespace lindrel {

namespace {

[[noreturn]] void Fail(const std::filesystem::path& path) {
    const std::string reason = std::strerror(errno);
    throw FileFault(WideText(path), std::wstring(reason.begin(), reason.end()));
}

int Opened(const std::filesystem::path& path, int handle) {
    if (handle < 0) Fail(path);
    return handle;
}

int Native(std::intptr_t handle) {
    return static_cast<int>(handle);
}

// The permissions of the old file, so that the new one is neither more private nor more public.
mode_t ModeFor(const std::filesystem::path& path) {
    constexpr mode_t kDefaultMode = 0644;
    struct stat old {};
    return ::stat(path.c_str(), &old) == 0 ? old.st_mode & 07777 : kDefaultMode;
}

}  // namespace

std::wstring WideText(const std::filesystem::path& path) {
    // Not wstring(), which depends on the locale. File names are UTF-8 here.
    const std::u32string characters = path.u32string();
    return {characters.begin(), characters.end()};
}

File::File(std::filesystem::path path, std::intptr_t handle, std::filesystem::path temporary)
    : path_(std::move(path)), handle_(handle), temporary_(std::move(temporary)) {}

File File::ForReading(const std::filesystem::path& path) {
    return {path, Opened(path, ::open(path.c_str(), O_RDONLY | O_CLOEXEC))};
}

File File::ForWriting(const std::filesystem::path& path) {
    return {path, Opened(path, ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))};
}

File File::ForReplacing(const std::filesystem::path& path) {
    const bool exists = ::access(path.c_str(), F_OK) == 0;
    if (exists && ::access(path.c_str(), W_OK) != 0) Fail(path);
    std::string temporary = path.string() + ".XXXXXX";
    const int handle = Opened(path, ::mkostemp(temporary.data(), O_CLOEXEC));
    return {path, handle, temporary};
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
    if (::fchmod(Native(handle_), ModeFor(path_)) != 0) Fail(path_);
    if (::fsync(Native(handle_)) != 0) Fail(path_);
    Close();
    if (::rename(temporary_.c_str(), path_.c_str()) != 0) Fail(path_);
    temporary_.clear();
}

}  // namespace lindrel
