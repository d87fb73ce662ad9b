// SPDX-License-Identifier: MIT
#pragma once

#include <pthread.h>

#include <cstdarg>
#include <cstdio>
#include <map>

#include "ustring.h"

/// The process-wide log: filters by a threshold per component and writes to the system log, a
/// standard stream or a file that is rotated by size.
///
/// `LogMsg` and `LogMsg2` may be called from any thread once the logger is set up; one mutex keeps
/// messages whole. `Initialize`, `ReloadLogFile`, `Destroy` and a direct call of `Rotate` take no
/// lock: no other thread may log meanwhile. Nothing here throws or logs about itself.
class Logger {
public:
    enum Type { TYPE_SYSLOG = 1, TYPE_STDOUT = 2, TYPE_STDERR = 3, TYPE_FILE = 4 };

    /// A lower number is more severe; the numbers are those of the syslog priorities (RFC 5424).
    enum Level {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7
    };

    /// Sets up the destination. `path` and `rotateCount` (files kept, the current one included)
    /// matter for TYPE_FILE only; `levelFile` is a key=value file of thresholds per component and
    /// may be empty or missing. Returns 0, or -1 when the file cannot be opened for appending;
    /// ERROR and WARNING messages then still go to the stream that was in use before.
    static int Initialize(Logger::Type type, ustring const &path, ustring const &levelFile,
                          int rotateCount);

    /// Writes one message when `level` is at most the component's threshold (4 when it has none).
    static void LogMsg(Logger::Level level, ustring const &component, char const *format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Logger::Level level, ustring const &component, char const *format,
                        va_list args) __attribute__((format(printf, 3, 0)));

    /// Shifts launcher.log_0 and its followers up by one and starts a new file; the caller holds
    /// the lock. Returns 0, or -1 when the new file could not be put in place.
    static int Rotate();
    /// Opens the log file again, for example after another program has moved it away.
    static void ReloadLogFile();
    /// Stops all logging until the next `Initialize` and frees what the logger holds.
    static void Destroy();

    static void InitializeLock();
    static void DestroyLock();
    static int Lock();
    static int Unlock();
    static void InitializeSharedData();
    static void DestroySharedData();
    static void InitializeFileLock();
    static void DestroyFileLock();

    static bool log_initialized;
    static Logger::Type log_type;
    static FILE *log_fp;
    static ustring log_path;
    static int rotate_cnt;
    static std::map<ustring, int> log_level;
    static int *log_size;                                 // bytes; -1 counts nothing
    static unsigned long long *log_rotated_count_shared;  // rotations by all writers
    static unsigned long long log_rotated_count_private;  // rotations seen by this process
    static pthread_mutex_t *log_lock;
    static bool inter_process_safe;
    static int log_flock;
};

/// For callers in C.
extern "C" void LogMSG_c(int level, char *component, char const *format, va_list args)
    __attribute__((format(printf, 3, 0)));
