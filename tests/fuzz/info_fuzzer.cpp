// SPDX-License-Identifier: MIT
// Bytes as the INFO file of the installed copy: whatever they are, the versions read are text, and
// none is newer than itself.

#undef NDEBUG  // an assertion ends the run, so that the input is kept as a finding

#include <QCoreApplication>
#include <cassert>

#include "../support/test-support.h"
#include "mac/mac-service.h"

struct LoadedService : MacService {
    LoadedService() {
        LoadSourceVersion();
        assert(ustring::is_valid(m_source_major_version + m_source_minor_version +
                                 m_source_build_version + m_source_icon_overlay_version));
        m_target_build_version = m_source_build_version;
        assert(!IsNeedUpgrade());
    }
};

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    setenv("HOME", fs::current_path().c_str(), 1);  // the temporary folder of scripts/fuzz.sh
    static QCoreApplication app(*argc, *argv);
    WriteFile(".LumarisBackup/Lumaris.app/Contents/MacOS/lumaris-backup-ui", "client");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    WriteFile(".LumarisBackup/Lumaris.app/Contents/Resources/INFO",
              {reinterpret_cast<const char *>(data), size});
    LoadedService();
    return 0;
}
