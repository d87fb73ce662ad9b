// SPDX-License-Identifier: MIT
// Bytes as a package: counted, listed and extracted into a fresh folder. A success reports every
// entry counted; a damaged package may yield more.

#include "extractor.h"

#include <sys/resource.h>
#include <sys/statvfs.h>

#include <QCoreApplication>
#include <QObject>
#include <csignal>

#include "fuzz-support.h"
#include "logger.h"
#include "notify-adapter.h"

static int reports = 0;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    struct statvfs root = {};
    if (statvfs("/", &root) != 0 || (root.f_flag & ST_RDONLY) == 0) {
        fprintf(stderr, "a package can write anywhere through links: run scripts/fuzz.sh\n");
        exit(2);
    }
    static QCoreApplication app(*argc, *argv);  // sets the locale
    const struct rlimit limit = {8 << 20, 8 << 20};
    setrlimit(RLIMIT_FSIZE, &limit);
    signal(SIGXFSZ, SIG_IGN);
    MUST(freopen("/dev/null", "w", stdout) != nullptr);
    Logger::Initialize(Logger::TYPE_FILE, (OwnFolder() / "log").c_str(), "", 2);
    QObject::connect(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &app,
                     [](int, int current) { MUST(current == ++reports); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const std::string folder = OwnFolder() / "run";
    fs::create_directories(folder + "/d");
    WriteFile(folder + "/package", Bytes(data, size));
    Extractor extractor;
    extractor.m_src_path = folder + "/package";
    extractor.m_dest_path = folder + "/d";
    const int count = extractor.Count();
    MUST(extractor.List() == (count < 0 ? -1 : 0));
    reports = 0;
    const int result = extractor.Extract();
    MUST(result == 0 || result == -1);
    MUST(result != 0 || (count > 0 && reports >= count));
    std::error_code error;
    fs::remove_all(folder, error);
    // Folders may lack permissions, and be deeper than a path can say.
    const std::string quoted = " '" + folder + "'";
    MUST(!error ||
         system(("/bin/chmod -R u+rwx" + quoted + "; /bin/rm -rf" + quoted).c_str()) == 0);
    return 0;
}
