// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QString>

#include "client-layout.h"
#include "launch-services.h"

namespace {

/// Starts a program in its own session and without standard streams: the client outlives the
/// launcher and must not keep the launcher's output open. Signals that the launcher ignores get
/// their default action back.
class DetachedStart {
public:
    DetachedStart() {
        posix_spawn_file_actions_init(&m_files);
        posix_spawnattr_init(&m_attributes);
        posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&m_files, STDOUT_FILENO, STDERR_FILENO);
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, SIGXFSZ);
        sigaddset(&signals, SIGPIPE);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF);
    }
    ~DetachedStart() {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_files);
    }
    DetachedStart(const DetachedStart &) = delete;
    DetachedStart &operator=(const DetachedStart &) = delete;

    bool Run(QByteArray program) const {
        char *arguments[] = {program.data(), nullptr};
        pid_t pid = 0;
        return posix_spawn(&pid, program.data(), &m_files, &m_attributes, arguments, environ) == 0;
    }

private:
    posix_spawn_file_actions_t m_files;
    posix_spawnattr_t m_attributes;
};

}  // namespace

namespace LaunchServices {

int UnregisterBundle(const QString & /*bundle*/) {
    return 0;  // There is no registry of bundles.
}

bool OpenBundle(const QString &bundle) {
    // Not QProcess: its child allocates memory between fork() and exec(), which hangs if another
    // thread held the allocator's lock at the fork.
    return DetachedStart().Run(
        QFile::encodeName(bundle + QLatin1Char('/') + QLatin1String(kClientExecutable)));
}

}  // namespace LaunchServices
