// What can go wrong when a file is replaced, natively: each time the fault, the bytes that are there
// afterwards and everything that stands in the folder.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <thread>

#include "faults/Faults.h"
#include "files/File.h"
#include "files/Files.h"
#include "files/Patience.h"
#include "files/TemporaryName.h"
#include "tests/native/support/TemporaryFolder.h"

namespace lindrel {
namespace {

using std::filesystem::path;
using Listing = std::map<std::string, std::string>;  // name and content, "/" for a folder

constexpr char kOld[] = "old";
constexpr char kNew[] = "new";

class FileReplacingTest : public ::testing::Test {
  protected:
    static Listing ListingOf(const path& folder) {
        Listing listing;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            listing[entry.path().filename().string()] =
                entry.is_directory() ? "/" : testing::ContentOf(entry.path());
        return listing;
    }
    Listing There() const { return ListingOf(folder); }

    static path TemporaryOf(const path& file) {
        return file.parent_path() / TemporaryName<char>(file.filename().native());
    }

    // "path: reason" of the fault that replacing the file throws, and what of the path to leave out.
    static std::string FaultOf(const path& file, std::string_view bytes = kNew) {
        try {
            ReplaceFileBytes(file, bytes);
        } catch (const FileFault& fault) {
            if (fault.Path() != WideText(file)) return "a fault of another path";
            return {fault.Meaning().begin(), fault.Meaning().end()};
        }
        return "none";
    }

    // What the function returns in a child process, which may limit and unshare whatever it likes.
    static std::string InChild(const std::function<std::string()>& function) {
        int ends[2];
        if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
        const pid_t child = ::fork();
        if (child == 0) {
            const std::string result = function();
            const bool sent = ::write(ends[1], result.data(), result.size()) >= 0;
            ::_exit(sent ? 0 : 1);
        }
        ::close(ends[1]);
        std::string result(200, '\0');
        const ssize_t got = ::read(ends[0], result.data(), result.size());
        ::close(ends[0]);
        int status = 0;
        if (::waitpid(child, &status, 0) != child || status != 0 || got < 0) return "the child failed";
        result.resize(static_cast<std::size_t>(got));
        return result;
    }

    const testing::TemporaryFolder temporary;
    const path folder = temporary.Path();
    const path file = folder / "a.lnd";
};

std::string Reason(int error) {
    return std::strerror(error);
}

// Mounts a disk of 64 KB that only this process and its children see.
bool MountSmallDisk(const path& folder) {
    const uid_t user = ::geteuid();
    if (::unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
    if (user != 0) WriteFileBytes("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

TEST_F(FileReplacingTest, AMissingFolder) {
    EXPECT_EQ(FaultOf(folder / "nincs" / "a.lnd"), Reason(ENOENT));
    EXPECT_EQ(There(), Listing{});
}

TEST_F(FileReplacingTest, AFolderInThePlaceOfTheFile) {
    std::filesystem::create_directory(file);
    EXPECT_EQ(FaultOf(file), Reason(EISDIR));
    EXPECT_EQ(There(), (Listing{{"a.lnd", "/"}}));
}

TEST_F(FileReplacingTest, AReadOnlyFile) {
    WriteFileBytes(file, kOld);
    ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
    EXPECT_EQ(FaultOf(file), Reason(EACCES));
    EXPECT_EQ(There(), (Listing{{"a.lnd", kOld}}));
}

TEST_F(FileReplacingTest, ADeviceAPipeAndASocketAreNoFiles) {
    EXPECT_EQ(FaultOf("/dev/full"), Reason(EINVAL));
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(FaultOf(file), Reason(EINVAL));
    EXPECT_TRUE(std::filesystem::is_fifo(file));
}

TEST_F(FileReplacingTest, AFullDisk) {
    WriteFileBytes(file, kOld);
    const std::string bytes(1U << 20, 'x');
    // A file that may not grow further, which needs no rights at all ...
    EXPECT_EQ(InChild([&] {
                  const rlimit limit{65536, 65536};
                  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0 || ::signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
                      return Reason(errno);
                  return FaultOf(file, bytes);
              }),
              Reason(EFBIG));
    EXPECT_EQ(There(), (Listing{{"a.lnd", kOld}}));
    // ... and a disk of 64 KB, where the system lets the child mount one.
    const std::string fault = InChild([&] {
        if (!MountSmallDisk(folder)) return std::string("no disk");
        WriteFileBytes(file, kOld);
        const std::string result = FaultOf(file, bytes);
        return There() == Listing{{"a.lnd", kOld}} ? result : "something else is there";
    });
    if (fault == "no disk")
        std::cout << "This machine mounts no disk for a test; the limit of the file's size has to do.\n";
    else
        EXPECT_EQ(fault, Reason(ENOSPC));
}

TEST_F(FileReplacingTest, AFolderThatCannotBeWritten) {
    WriteFileBytes(file, kOld);
    ASSERT_EQ(::chmod(folder.c_str(), 0555), 0);
    EXPECT_EQ(
        InChild([&] {
            constexpr uid_t kNobody = 65534;
            if (::geteuid() == 0 && (::chown(folder.c_str(), kNobody, kNobody) != 0 ||
                                     ::chown(file.c_str(), kNobody, kNobody) != 0 || ::setuid(kNobody) != 0))
                return Reason(errno) + " (not another user)";
            return FaultOf(file);
        }),
        Reason(EACCES));
    ASSERT_EQ(::chmod(folder.c_str(), 0755), 0);
    EXPECT_EQ(There(), (Listing{{"a.lnd", kOld}}));
}

TEST_F(FileReplacingTest, ASymbolicLinkStaysAndItsFileIsReplaced) {
    const path elsewhere = folder / "m";
    std::filesystem::create_directory(elsewhere);
    WriteFileBytes(elsewhere / "b.lnd", kOld);
    std::filesystem::create_symlink("m/b.lnd", folder / "middle.lnd");
    std::filesystem::create_symlink("middle.lnd", file);
    EXPECT_EQ(FaultOf(file), "none");
    EXPECT_EQ(std::filesystem::read_symlink(file), "middle.lnd");
    EXPECT_EQ(std::filesystem::read_symlink(folder / "middle.lnd"), "m/b.lnd");
    EXPECT_EQ(ListingOf(elsewhere), (Listing{{"b.lnd", kNew}}));
}

TEST_F(FileReplacingTest, ALinkThatLeadsNowhere) {
    std::filesystem::create_symlink("nincs.lnd", file);
    EXPECT_EQ(FaultOf(file), Reason(ENOENT));
    std::filesystem::remove(file);
    std::filesystem::create_symlink("a.lnd", file);
    EXPECT_EQ(FaultOf(file), Reason(ELOOP));
    EXPECT_EQ(std::filesystem::read_symlink(file), "a.lnd");
}

TEST_F(FileReplacingTest, OtherNamesOfTheFileKeepTheOldContent) {
    WriteFileBytes(file, kOld);
    std::filesystem::create_hard_link(file, folder / "same.lnd");
    EXPECT_EQ(FaultOf(file), "none");
    EXPECT_EQ(There(), (Listing{{"a.lnd", kNew}, {"same.lnd", kOld}}));
}

TEST_F(FileReplacingTest, TheModeBitsStayAndTheMaskDecidesForANewFile) {
    for (const mode_t mode : {0600U, 0664U, 0755U}) {
        WriteFileBytes(file, kOld);
        ASSERT_EQ(::chmod(file.c_str(), mode), 0);
        EXPECT_EQ(FaultOf(file), "none");
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(mode));
    }
    std::filesystem::remove(file);
    const mode_t before = ::umask(0027);
    EXPECT_EQ(FaultOf(file), "none");
    ::umask(before);
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
}

TEST_F(FileReplacingTest, NamesAsLongAsTheDiskAllows) {
    for (const std::size_t length : {240U, 249U, 250U, 255U}) {
        const path longest = folder / (std::string(length - 4, 'x') + ".lnd");
        WriteFileBytes(longest, kOld);
        EXPECT_EQ(FaultOf(longest), "none") << length;
        EXPECT_EQ(There(), (Listing{{longest.filename().string(), kNew}}));
        std::filesystem::remove(longest);
    }
    EXPECT_EQ(FaultOf(folder / std::string(256, 'x')), Reason(ENAMETOOLONG));
    EXPECT_EQ(There(), Listing{});
}

TEST_F(FileReplacingTest, WhatAKilledSaveHasLeftIsTakenOver) {
    WriteFileBytes(file, kOld);
    WriteFileBytes(TemporaryOf(file), std::string(5000, 'x'));
    EXPECT_EQ(FaultOf(file), "none");
    EXPECT_EQ(There(), (Listing{{"a.lnd", kNew}}));
}

TEST_F(FileReplacingTest, ALinkInThePlaceOfTheTemporaryFileIsNotFollowed) {
    WriteFileBytes(folder / "treasure", "gold");
    std::filesystem::create_symlink("treasure", TemporaryOf(file));
    EXPECT_EQ(FaultOf(file), Reason(EEXIST));
    EXPECT_EQ(testing::ContentOf(folder / "treasure"), "gold");
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(FileReplacingTest, WaitsForAnotherProgramThatSavesTheSameBook) {
    for (const auto held : {std::chrono::milliseconds(300), kFilePatience * 2}) {
        const bool for_good = held > kFilePatience;
        WriteFileBytes(file, kOld);
        WriteFileBytes(TemporaryOf(file), "x");
        const int other = ::open(TemporaryOf(file).c_str(), O_WRONLY | O_CLOEXEC);
        ASSERT_EQ(::flock(other, LOCK_EX), 0);
        std::jthread releasing([&](const std::stop_token& stop) {
            const auto end = std::chrono::steady_clock::now() + held;
            while (!stop.stop_requested() && std::chrono::steady_clock::now() < end)
                std::this_thread::yield();
            ::close(other);
        });
        EXPECT_EQ(FaultOf(file), for_good ? Reason(EEXIST) : "none");
        EXPECT_EQ(testing::ContentOf(file), for_good ? kOld : kNew);
    }
}

TEST_F(FileReplacingTest, TheStateOfAFileTellsEveryChange) {
    EXPECT_EQ(StateOf(file), std::nullopt);
    ReplaceFileBytes(file, kOld);
    const auto before = StateOf(file);
    EXPECT_EQ(before.value().Size, 3U);
    EXPECT_EQ(StateOf(file), before);
    ReplaceFileBytes(file, kOld);  // the same bytes at the same time, but another file
    EXPECT_NE(StateOf(file), before);
    const auto replaced = StateOf(file);
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::seconds(1));
    EXPECT_NE(StateOf(file), replaced);
    EXPECT_NE(StateOf(file).value().Time, replaced.value().Time);
}

}  // namespace
}  // namespace lindrel
