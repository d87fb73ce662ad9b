// SPDX-License-Identifier: MIT
// usage: mac-volume FOLDER MOUNTPOINT -f -s [FUSE options]
// Shows FOLDER as a volume with the rules of a Mac: names keep their letter case and spelling, but
// any case and any canonically equivalent spelling finds them. Writes a byte to standard output
// once it is mounted, and ends when it is unmounted.
#define FUSE_USE_VERSION 31
#include <fcntl.h>
#include <fuse3/fuse.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unicode/unistr.h>
#include <unicode/unorm.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace {

std::string folder;  // the one that is shown

bool SameName(const char *a, const char *b) {
    const auto x = icu::UnicodeString::fromUTF8(a), y = icu::UnicodeString::fromUTF8(b);
    UErrorCode error = U_ZERO_ERROR;
    return unorm_compare(x.getBuffer(), x.length(), y.getBuffer(), y.length(),
                         U_COMPARE_IGNORE_CASE, &error) == 0;
}

/// The path beneath `folder` of what was asked for; new names stay as they are.
std::string Find(const char *asked) {
    std::string found = folder;
    const std::string path = std::string(asked).substr(1);
    for (size_t pos = 0, end; pos < path.size(); pos = end + 1) {
        end = std::min(path.find('/', pos), path.size());
        std::string name = path.substr(pos, end - pos);
        std::error_code error;
        for (const auto &entry : fs::directory_iterator(found, error)) {
            if (SameName(entry.path().filename().c_str(), name.c_str())) {
                name = entry.path().filename();
            }
        }
        found += "/" + name;
    }
    return found;
}

int Result(long result) {
    return result < 0 ? -errno : static_cast<int>(result);
}

/// A system call as a file operation: the first takes what follows the path, the second the same
/// but for an open file that is not looked at.
template <auto call, typename... Arguments>
int Forward(const char *path, Arguments... arguments) {
    return Result(call(Find(path).c_str(), arguments...));
}
template <auto call, typename Argument>
int ForwardOpen(const char *path, Argument argument, fuse_file_info *) {
    return Result(call(Find(path).c_str(), argument));
}

int Create(const char *path, mode_t mode, fuse_file_info *file) {
    const int fd = open(Find(path).c_str(), file->flags, mode);
    file->fh = static_cast<uint64_t>(fd);
    return fd < 0 ? -errno : 0;
}

int List(const char *path, void *buffer, fuse_fill_dir_t fill, off_t, fuse_file_info *,
         fuse_readdir_flags) {
    std::error_code error;
    for (const auto &entry : fs::directory_iterator(Find(path), error)) {
        fill(buffer, entry.path().filename().c_str(), nullptr, 0, fuse_fill_dir_flags(0));
    }
    return -error.value();
}

int SetTimes(const char *path, const timespec times[2], fuse_file_info *) {
    return Result(utimensat(AT_FDCWD, Find(path).c_str(), times, AT_SYMLINK_NOFOLLOW));
}

int ReadLink(const char *path, char *text, size_t size) {
    std::memset(text, 0, size);
    return std::min(Forward<readlink>(path, text, size - 1), 0);
}

int Fd(const fuse_file_info *file) {
    return static_cast<int>(file->fh);
}

fuse_operations Operations() {
    fuse_operations table = {};
    table.init = [](fuse_conn_info *, fuse_config *config) -> void * {
        // Nothing is remembered: names change on disk under the kernel's feet.
        config->entry_timeout = config->attr_timeout = config->negative_timeout = 0;
        std::putchar('.');
        std::fflush(stdout);
        return nullptr;
    };
    table.getattr = ForwardOpen<lstat, struct stat *>;
    table.chmod = ForwardOpen<chmod, mode_t>;
    table.truncate = ForwardOpen<truncate, off_t>;
    table.utimens = SetTimes;
    table.mkdir = Forward<mkdir, mode_t>;
    table.unlink = Forward<unlink>;
    table.rmdir = Forward<rmdir>;
    table.readlink = ReadLink;
    table.symlink = [](const char *target, const char *link) {
        return Result(symlink(target, Find(link).c_str()));
    };
    table.rename = [](const char *from, const char *to, unsigned int) {
        return Result(rename(Find(from).c_str(), Find(to).c_str()));
    };
    table.readdir = List;
    table.create = Create;
    table.open = [](const char *path, fuse_file_info *file) { return Create(path, 0, file); };
    table.read = [](const char *, char *data, size_t size, off_t at, fuse_file_info *file) {
        return Result(pread(Fd(file), data, size, at));
    };
    table.write = [](const char *, const char *data, size_t size, off_t at, fuse_file_info *file) {
        return Result(pwrite(Fd(file), data, size, at));
    };
    table.release = [](const char *, fuse_file_info *file) { return close(Fd(file)); };
    return table;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc < 3) {
        return 2;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // it must not outlive a test that crashes
    folder = argv[1];
    argv[1] = argv[0];
    const fuse_operations table = Operations();
    return fuse_main(argc - 1, argv + 1, &table, nullptr);
}
