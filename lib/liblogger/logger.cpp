// SPDX-License-Identifier: MIT
#include "logger.h"

#include <fcntl.h>
#include <syslog.h>
#include <unistd.h>

#include <array>
#include <ctime>
#include <new>

#include "config.h"
#include "regular-file.h"

namespace {

constexpr int kDefaultThreshold = Logger::LEVEL_WARNING;
constexpr int kMaxLogSize = 1024 * 1024;  // bytes

/// The name of a rotated file; number 0 is the newest. Empty when the name does not fit: a
/// shortened one could be that of the log itself.
std::array<char, 1024> RotatedName(char const *path, int index) {
    std::array<char, 1024> name;
    if (snprintf(name.data(), name.size(), "%s_%d", path, index) >= int(name.size())) {
        name[0] = '\0';
    }
    return name;
}

FILE *OpenForAppending(ustring const &path) {
    int const file = OpenRegularFile(path, O_WRONLY | O_APPEND | O_CREAT);
    FILE *const stream = file < 0 ? nullptr : fdopen(file, "a");
    if (file >= 0 && stream == nullptr) {
        close(file);
    }
    return stream;
}

/// An unknown type opens its path as well, although its messages go to standard error.
bool IsFileType(Logger::Type type) {
    return type != Logger::TYPE_SYSLOG && type != Logger::TYPE_STDOUT &&
           type != Logger::TYPE_STDERR;
}

void CloseStream() {
    // A file logger that could not open its file still writes to a standard stream. If that were
    // closed, the next file that the process opens would get its descriptor number.
    if (Logger::log_fp != nullptr && Logger::log_fp != stdout && Logger::log_fp != stderr) {
        fclose(Logger::log_fp);
    }
    Logger::log_fp = nullptr;
}

bool OpenLogFile() {
    Logger::log_fp = OpenForAppending(Logger::log_path);
    return Logger::log_fp != nullptr;
}

void FollowOtherWriter() {
    if (Logger::log_rotated_count_private == *Logger::log_rotated_count_shared) {
        return;
    }
    if (IsFileType(Logger::log_type)) {
        CloseStream();
        if (OpenLogFile()) {
            *Logger::log_size = 0;
        }
    }
    Logger::log_rotated_count_private = *Logger::log_rotated_count_shared;
}

void LoadThresholds(ustring const &levelFile) {
    Logger::log_level["default_component"] = kDefaultThreshold;
    if (levelFile.empty()) {
        return;
    }
    Config config;
    config.read(levelFile);  // a rejected file leaves no entries
    for (auto const &entry : config) {
        Logger::log_level[entry.first] = config.get_int(entry.first);
    }
}

int Threshold(ustring const &component) {
    auto const entry = Logger::log_level.find(component);
    return entry == Logger::log_level.end() ? kDefaultThreshold : entry->second;
}

int WriteTimeStamp(FILE *stream) {
    time_t const now = time(nullptr);
    struct tm local = {};
    tzset();  // localtime_r() need not notice that the zone was changed
    localtime_r(&now, &local);
    char stamp[512] = "";
    strftime(stamp, sizeof(stamp), "%b %d %H:%M:%S ", &local);
    return fprintf(stream, "%s", stamp);
}

/// Returns the number of bytes to count.
__attribute__((format(printf, 1, 0))) int Write(char const *format, va_list args) {
    int written = 0;
    switch (Logger::log_type) {
        case Logger::TYPE_SYSLOG:
            vsyslog(LOG_ERR, format, args);
            break;
        case Logger::TYPE_STDOUT:
        case Logger::TYPE_STDERR:
        case Logger::TYPE_FILE:
            if (Logger::log_fp != nullptr) {
                written = WriteTimeStamp(Logger::log_fp);
                // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): started by the callers
                written += vfprintf(Logger::log_fp, format, args);
                fflush(Logger::log_fp);
            }
            break;
        default:
            vfprintf(stderr, format, args);
            break;
    }
    return written;
}

void CountAndRotate(int written) {
    if (Logger::log_type != Logger::TYPE_FILE) {
        return;
    }
    if (*Logger::log_size >= 0 && written >= 0) {
        *Logger::log_size += written;
    }
    if (*Logger::log_size > kMaxLogSize) {
        Logger::Rotate();
        *Logger::log_size = 0;
    }
}

}  // namespace

bool Logger::log_initialized = true;
Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
FILE *Logger::log_fp = stderr;
ustring Logger::log_path;
int Logger::rotate_cnt = 50;
std::map<ustring, int> Logger::log_level;
int *Logger::log_size = nullptr;
unsigned long long *Logger::log_rotated_count_shared = nullptr;
unsigned long long Logger::log_rotated_count_private = 0;
pthread_mutex_t *Logger::log_lock = nullptr;
bool Logger::inter_process_safe = false;
int Logger::log_flock = -1;

int Logger::Initialize(Logger::Type type, ustring const &path, ustring const &levelFile,
                       int rotateCount) {
    DestroySharedData();
    DestroyLock();
    InitializeLock();
    InitializeSharedData();
    if (log_size == nullptr || log_rotated_count_shared == nullptr) {
        return -1;
    }
    LoadThresholds(levelFile);
    log_type = type;
    if (IsFileType(type)) {
        // After a failure the earlier stream stays in use; with the fresh counters it is not
        // rotated.
        FILE *const stream = path.empty() ? nullptr : OpenForAppending(path);
        if (stream == nullptr) {
            return -1;
        }
        log_fp = stream;
        *log_size = 0;
        log_path = path;
        rotate_cnt = rotateCount;
    } else {
        log_fp = nullptr;
        if (type != TYPE_SYSLOG) {
            log_fp = type == TYPE_STDOUT ? stdout : stderr;
        }
        log_path.clear();
        *log_size = -1;
    }
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
    log_initialized = true;
    return 0;
}

void Logger::LogMsg(Logger::Level level, ustring const &component, char const *format, ...) {
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Logger::Level level, ustring const &component, char const *format,
                     va_list args) {
    if (!log_initialized) {
        return;
    }
    if (log_lock == nullptr || log_size == nullptr || log_rotated_count_shared == nullptr) {
        InitializeLock();
        InitializeSharedData();
    }
    if (log_lock == nullptr || log_size == nullptr || log_rotated_count_shared == nullptr) {
        return;  // out of memory
    }
    // Checked under the lock, because the stream is null while another thread rotates.
    Lock();
    if (log_type == TYPE_SYSLOG || log_fp != nullptr) {
        FollowOtherWriter();
        if (level <= Threshold(component)) {
            CountAndRotate(Write(format, args));
        }
    }
    Unlock();
}

// With rotate_cnt = 50:
//     launcher.log_48                 ->  launcher.log_49, removed
//     launcher.log_47 ... _1, _0      ->  launcher.log_48 ... _2, _1
//     launcher.log                    ->  launcher.log_0
//     (new and empty)                 ->  launcher.log
int Logger::Rotate() {
    char const *const path = log_path.c_str_utf8();
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        rename(RotatedName(path, i).data(), RotatedName(path, i + 1).data());
    }
    remove(RotatedName(path, rotate_cnt - 1).data());
    CloseStream();
    if (rename(path, RotatedName(path, 0).data()) != 0 || !OpenLogFile()) {
        return -1;
    }
    // Both counters advance, so that this process does not reopen the file after its own rotation.
    ++*log_rotated_count_shared;
    ++log_rotated_count_private;
    return 0;
}

void Logger::ReloadLogFile() {
    // A file logger without a path has failed to start and keeps its standard stream.
    if (!IsFileType(log_type) || log_path.empty()) {
        return;
    }
    CloseStream();
    OpenLogFile();
    InitializeSharedData();
    if (log_size != nullptr) {
        *log_size = 0;
    }
}

void Logger::Destroy() {
    log_initialized = false;
    if (log_type == TYPE_FILE) {
        CloseStream();
        log_fp = stdout;
        log_type = TYPE_STDERR;
        log_path.clear();
        rotate_cnt = 32;
    }
    DestroySharedData();
    DestroyLock();
}

void Logger::InitializeLock() {
    if (log_lock != nullptr) {
        return;
    }
    log_lock = new (std::nothrow) pthread_mutex_t;
    if (log_lock != nullptr) {
        pthread_mutex_init(log_lock, nullptr);
    }
}

void Logger::DestroyLock() {
    if (log_lock == nullptr) {
        return;
    }
    pthread_mutex_destroy(log_lock);
    delete log_lock;
    log_lock = nullptr;
}

int Logger::Lock() {
    return pthread_mutex_lock(log_lock);
}

int Logger::Unlock() {
    return pthread_mutex_unlock(log_lock);
}

void Logger::InitializeSharedData() {
    if (log_size != nullptr && log_rotated_count_shared != nullptr) {
        return;
    }
    DestroySharedData();
    // Until a log file is opened, -1 keeps bytes from being counted, and equal counters keep the
    // file from being reopened.
    log_size = new (std::nothrow) int(-1);
    log_rotated_count_shared = new (std::nothrow) unsigned long long(0);
    log_rotated_count_private = 0;
}

void Logger::DestroySharedData() {
    delete log_size;
    log_size = nullptr;
    delete log_rotated_count_shared;
    log_rotated_count_shared = nullptr;
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

void LogMSG_c(int level, char *component, char const *format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}
