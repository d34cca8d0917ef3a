#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "book/Faults.h"
#include "book/Files.h"

namespace lindrel {

namespace {

[[noreturn]] void Fail(const std::filesystem::path& path, int error = errno) {
    const std::string reason = std::strerror(error);
    throw FileFault(WideText(path), std::wstring(reason.begin(), reason.end()));
}

class File {
  public:
    File(const std::filesystem::path& path, int flags, mode_t mode)
        : path_(path), handle_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {
        if (handle_ < 0) Fail(path);
    }
    // A new file with a name of its own, which replaces the six X at the end of `name`.
    static File Temporary(std::string& name) {
        const int handle = ::mkstemp(name.data());
        if (handle < 0) Fail(name);
        return {handle, name};
    }
    ~File() {
        if (handle_ >= 0) ::close(handle_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    struct stat Status() const {
        struct stat status {};
        if (::fstat(handle_, &status) != 0) Fail(path_);
        return status;
    }

    // May give less than asked for at the end of the file.
    std::size_t Read(char* buffer, std::size_t size) const {
        std::size_t done = 0;
        while (done < size) {
            const ssize_t got = ::read(handle_, buffer + done, size - done);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) Fail(path_);
            if (got == 0) break;
            done += static_cast<std::size_t>(got);
        }
        return done;
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t put = ::write(handle_, bytes.data(), bytes.size());
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) Fail(path_);
            bytes.remove_prefix(static_cast<std::size_t>(put));
        }
    }

    void Flush() const {
        if (::fsync(handle_) != 0) Fail(path_);
    }

    void Close() {
        const int handle = handle_;
        handle_ = -1;
        if (::close(handle) != 0) Fail(path_);
    }

    void SetMode(mode_t mode) const {
        if (::fchmod(handle_, mode) != 0) Fail(path_);
    }

  private:
    File(int handle, std::filesystem::path path) : path_(std::move(path)), handle_(handle) {}

    std::filesystem::path path_;
    int handle_;
};

}  // namespace

std::wstring WideText(const std::filesystem::path& path) {
    const std::u32string characters = path.u32string();
    return {characters.begin(), characters.end()};
}

std::wstring NameOfFile(const std::filesystem::path& path) {
    // File names are UTF-8 here, whatever the locale.
    const std::u32string name = path.filename().u32string();
    return {name.begin(), name.end()};
}

std::vector<char> ReadFileBytes(const std::filesystem::path& path) {
    const File file(path, O_RDONLY, 0);
    std::vector<char> bytes(static_cast<std::size_t>(file.Status().st_size));
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

void WriteFileBytes(const std::filesystem::path& path, std::string_view bytes) {
    File file(path, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    file.Write(bytes);
    file.Close();
}

void ReplaceFileBytes(const std::filesystem::path& path, std::string_view bytes) {
    const bool exists = ::access(path.c_str(), F_OK) == 0;
    if (exists && ::access(path.c_str(), W_OK) != 0) Fail(path);
    std::string temporary = path.string() + ".XXXXXX";
    try {
        File file = File::Temporary(temporary);
        // The new file is as private, or as public, as the old one was.
        struct stat old {};
        const mode_t mode = exists && ::stat(path.c_str(), &old) == 0 ? old.st_mode & 07777 : 0644;
        file.SetMode(mode);
        file.Write(bytes);
        file.Flush();
        file.Close();
        if (::rename(temporary.c_str(), path.c_str()) != 0) Fail(path);
    } catch (const FileFault& fault) {
        ::unlink(temporary.c_str());
        throw FileFault(WideText(path), fault.Meaning());
    }
}

}  // namespace lindrel
