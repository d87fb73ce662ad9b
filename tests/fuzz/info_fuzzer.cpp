// SPDX-License-Identifier: MIT
// Bytes as the INFO file of the installed copy: whatever they are, the versions read are text, and
// only the number at the start of the build counts.

#include <QCoreApplication>
#include <climits>

#include "fuzz-support.h"
#include "mac/mac-service.h"

namespace {

class LoadedService : public MacService {
public:
    void Check() {
        LoadSourceVersion();
        for (const ustring &member : {m_source_major_version, m_source_minor_version,
                                      m_source_build_version, m_source_icon_overlay_version}) {
            MUST(ustring::is_valid(member));
        }
        const long source = strtol(m_source_build_version.c_str(), nullptr, 10);
        for (const long step : {-1L, 0L, 1L}) {
            if (source > INT_MIN && source < INT_MAX) {
                m_target_build_version = std::to_string(source + step);
                MUST(IsNeedUpgrade() == (step > 0));
            }
        }
    }
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    setenv("HOME", OwnFolder().c_str(), 1);
    static QCoreApplication app(*argc, *argv);
    const fs::path contents = OwnFolder() / ".LumarisBackup/Lumaris.app/Contents";
    fs::create_directories(contents / "Resources");
    fs::create_directories(contents / "MacOS");
    WriteFile(contents / "MacOS/lumaris-backup-ui", "client");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    WriteFile(OwnFolder() / ".LumarisBackup/Lumaris.app/Contents/Resources/INFO",
              Bytes(data, size));
    LoadedService().Check();
    return 0;
}
