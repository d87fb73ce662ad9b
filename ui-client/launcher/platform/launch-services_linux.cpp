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

/// What posix_spawn does before it starts the program: a session of its own and no standard
/// streams, since the client outlives the launcher and must not hold its output open. Signals that
/// the launcher ignores are the client's again.
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
    return 0;  // No registry of bundles: there is nothing to forget.
}

bool OpenBundle(const QString &bundle) {
    // Not QProcess: what it forks allocates memory before it becomes the client, while another
    // thread may have held the allocator's lock.
    return DetachedStart().Run(
        QFile::encodeName(bundle + QLatin1Char('/') + QLatin1String(kClientExecutable)));
}

}  // namespace LaunchServices
