// SPDX-License-Identifier: MIT
// A small client to install, start and stop: it keeps its pid file while it runs, notes its start
// and its end in log/client.log and ends on SIGTERM, unless LUMARIS_CLIENT_IGNORE_SIGTERM is set.

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// Creates the pid file and locks it until this process ends, so that neither a killed client nor a
/// reused process id counts as running. -1 when another client holds the lock.
int ClaimPidFile(const std::string &pidFile) {
    const int file = open(pidFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (file < 0 || flock(file, LOCK_EX | LOCK_NB) != 0) {
        return -1;
    }
    const std::string text = "pid=" + std::to_string(getpid()) + "\n";
    if (ftruncate(file, 0) != 0 || write(file, text.data(), text.size()) < 0) {
        return -1;
    }
    return file;
}

void Note(const std::string &logFile, const char *what) {
    if (FILE *file = fopen(logFile.c_str(), "a")) {
        fprintf(file, "%s pid %ld\n", what, static_cast<long>(getpid()));
        fclose(file);
    }
}

}  // namespace

int main() {
    const char *home = getenv("HOME");
    if (home == nullptr) {
        return 1;
    }
    const std::string folder = std::string(home) + "/.LumarisBackup";
    const std::string pidFile = folder + "/ui.pid";
    const std::string logFile = folder + "/log/client.log";

    // Blocked before the pid file exists: its readers may send SIGTERM at once.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);

    if (ClaimPidFile(pidFile) < 0) {
        Note(logFile, "already running, opened by");
        return 0;
    }
    Note(logFile, "started");

    const bool ignore = getenv("LUMARIS_CLIENT_IGNORE_SIGTERM") != nullptr;
    int received = 0;
    while (sigwait(&signals, &received) == 0 && ignore) {
    }
    Note(logFile, "asked to end,");
    remove(pidFile.c_str());
    return 0;
}
