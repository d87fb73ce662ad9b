// SPDX-License-Identifier: MIT
// Bytes as a package: counted and extracted into a fresh folder. A sanitizer or an assertion ends
// the run, and the input is kept as a finding.

#undef NDEBUG

#include "extractor.h"

#include <QCoreApplication>
#include <cassert>

#include "../support/test-support.h"

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    if (fs::current_path() != "/mnt/tmp") {
        fprintf(stderr, "a package can write anywhere through links: run scripts/fuzz.sh\n");
        exit(2);
    }
    static QCoreApplication app(*argc, *argv);  // sets the locale
    Logger::Initialize(Logger::TYPE_FILE, "log", "", 2);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fs::create_directories("run/d");
    WriteFile("run/package", {reinterpret_cast<const char *>(data), size});
    Extractor extractor;
    extractor.m_src_path = "/mnt/tmp/run/package";
    extractor.m_dest_path = "/mnt/tmp/run/d";
    const int count = extractor.Count();
    assert(extractor.Extract() == -1 || count > 0);  // an empty package is refused
    std::error_code error;
    fs::remove_all("run", error);
    // Folders may lack permissions, and be deeper than a path can say.
    assert(!error || system("/bin/chmod -R u+rwx run; /bin/rm -rf run") == 0);
    return 0;
}
