// Bytes as the INFO file of the installed copy: whatever they are, the versions read are text, a
// key that is absent leaves its member, and only the number at the start of the build counts.

#include <fcntl.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <climits>

#include "fuzz-support.h"
#include "logger.h"
#include "mac/mac-service.h"

namespace {

const ustring kBefore = "before";

class LoadedService : public MacService {
public:
    LoadedService() {
        for (ustring *member : {&m_source_major_version, &m_source_minor_version,
                                &m_source_build_version, &m_source_icon_overlay_version})
            *member = kBefore;
        LoadSourceVersion();
    }

    /// Only a percent sign can spell a key otherwise than it is.
    void CheckMembers(const std::string &info) const {
        const auto check = [&info](const char *key, const ustring &member) {
            MUST(ustring::is_valid(member));
            if (info.find('%') == std::string::npos &&
                (info.find(key) == std::string::npos || info.find("Version") == std::string::npos))
                MUST(member == kBefore);
        };
        check("major_version", m_source_major_version);
        check("minor_version", m_source_minor_version);
        check("build_version", m_source_build_version);
        check("icon_overlay_version", m_source_icon_overlay_version);
    }

    void CheckDecision() {
        const long source = strtol(m_source_build_version.c_str(), nullptr, 10);
        if (source <= INT_MIN || source >= INT_MAX)
            return;
        for (const long step : {-1L, 0L, 1L}) {
            m_target_build_version = std::to_string(source + step);
            MUST(IsNeedUpgrade() == (step > 0));
        }
    }
};

fs::path Resources() {
    return OwnFolder() / ".LumarisBackup/Lumaris.app/Contents/Resources";
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    setenv("HOME", OwnFolder().c_str(), 1);
    static QCoreApplication app(*argc, *argv);
    fs::create_directories(Resources());
    fs::create_directories(Resources() / "../MacOS");
    WriteFile(Resources() / "../MacOS/lumaris-backup-ui", "client");
    WriteFile(OwnFolder() / "levels", "service_debug=7");
    Logger::Initialize(Logger::TYPE_FILE, (OwnFolder() / "log").c_str(),
                       (OwnFolder() / "levels").c_str(), 2);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string info = Bytes(data, size);
    const fs::path path = Resources() / "INFO";
    WriteFile(path, info);
    // The settings reader caches files by name, size and time.
    static time_t second = 0;
    const struct timespec times[2] = {{++second, 0}, {second, 0}};
    MUST(utimensat(AT_FDCWD, path.c_str(), times, 0) == 0);

    LoadedService service;
    service.CheckMembers(info);
    service.CheckDecision();
    return 0;
}
