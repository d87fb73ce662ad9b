// SPDX-License-Identifier: MIT
#include "mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "client-layout.h"
#include "config.h"
#include "file-op.h"
#include "log-macros.h"
#include "platform/launch-services.h"
#include "qt-text.h"

#define LOG_MODULE "mac/mac-service"
static const ustring LOG_COMPONENT("service_debug");

namespace {

const int kStopAttempts = 5;  // one per second

/// The process id in the text of the pid file, or 0 when it cannot be the client's. kill() takes 0
/// and negative ids for process groups, our own among them.
pid_t ClientPid(const ustring &text) {
    const long value = atol(text.c_str());
    if (value <= 0 || value > std::numeric_limits<pid_t>::max() || value == getpid()) {
        return 0;
    }
    return static_cast<pid_t>(value);
}

int BuildNumber(const ustring &text) {
    return text.empty() ? 0 : atoi(text.c_str());
}

/// Asks the process to end, and kills it if it is still there after all attempts.
void TerminateProcess(pid_t pid) {
    if (kill(pid, SIGTERM) != 0) {
        const int error = errno;
        if (error == ESRCH) {
            return;
        }
        MSG_ERROR("kill: %s (%d)\n", strerror(error), error);
    }
    for (int attempt = 0; attempt < kStopAttempts; ++attempt) {
        if (kill(pid, 0) != 0 && errno == ESRCH) {
            return;
        }
        sleep(1);
    }
    kill(pid, SIGKILL);
}

}  // namespace

MacService::MacService() {
    m_timeout = 10000;
    m_user_app_path = GetUserLumarisAppInstallPath();
}

MacService::~MacService() = default;

MacService &MacService::GetInstace() {
    static MacService instance;
    return instance;
}

void MacService::StopService() {
    const ustring pidFile = GetUserLumarisInstallPath() + "/ui.pid";
    if (!IsFileExist(pidFile, false)) {
        MSG_DEBUG("pid file '%s' does not exist, no need to terminate\n", pidFile.c_str());
        return;
    }
    Config config;
    if (config.read(pidFile) < 0) {
        MSG_NOTE("Failed to read pid file '%s', not exist ?\n", pidFile.c_str());
        return;
    }
    const pid_t pid = ClientPid(config["pid"]);
    if (pid > 0) {
        TerminateProcess(pid);
    }
}

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        MSG_DEBUG("local appdata exist\n");
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0) {
        MSG_ERROR("Failed to launch Lumaris UI\n");
    }
}

void MacService::PreUpgrade() {
    Service::LoadTargetVersion();
    Service::LoadSourceVersion();
    MSG_DEBUG("Source version: ('%s', '%s')\n", m_source_build_version.c_str(),
              m_source_icon_overlay_version.c_str());
    MSG_DEBUG("Target version: ('%s', '%s')\n", m_target_build_version.c_str(),
              m_target_icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
    const int source = BuildNumber(m_source_build_version);
    const int target = BuildNumber(m_target_build_version);
    MSG_DEBUG("source version = %d, target version = %d\n", source, target);
    return !PerUserBinPathExist() || target > source;
}

bool MacService::PerUserBinPathExist() {
    // Permissions do not matter here: the desktop decides whether the client may be started. A path
    // that cannot be looked up counts as missing, so the client is installed again.
    const ustring client = m_user_app_path + "/" + kClientExecutable;
    return access(client.c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin() {
    const ustring path = GetUserLumarisAppInstallPath();
    const QString app = ToQString(path);
    if (LaunchServices::UnregisterBundle(app) != 0) {
        MSG_ERROR("Cannot unregister bundle, %s", path.c_str());
    }
    return LaunchServices::OpenBundle(app) ? 0 : -1;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}
