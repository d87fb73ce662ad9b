// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>

#include "compare.h"

// The allocator itself is counted, not only operator new, because ustring calls it directly.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
}

namespace {
unsigned long g_allocations = 0;  // no lock: what is measured here has one thread
}

extern "C" {
void *malloc(size_t size) {
    ++g_allocations;
    return __libc_malloc(size);
}
void *calloc(size_t count, size_t size) {
    ++g_allocations;
    return __libc_calloc(count, size);
}
void *realloc(void *memory, size_t size) {
    ++g_allocations;
    return __libc_realloc(memory, size);
}
}

unsigned long Allocations() {
    return g_allocations;
}

const std::string &WorkFolder() {
    static const std::string folder = [] {
        std::string name =
            (std::filesystem::temp_directory_path() / "lumaris-micro-XXXXXX").string();
        return std::string(mkdtemp(name.data()));
    }();
    return folder;
}

const std::vector<Path> &Paths() {
    static const std::vector<Path> paths = [] {
        const std::string home = "/Users/alice/.LumarisBackup";
        const std::string other = "/Users/Bj\xc3\xb6rn M\xc3\xbcller/.LumarisBackup";
        const std::string resources = "/Lumaris.app/Contents/Resources/";
        std::vector<Path> result;
        for (const std::string &text :
             {home + "/ui.pid", home + "/log/launcher.log_48", home + "/Lumaris.app_tmp9",
              home + resources + "INFO", home + resources + "pt-BR.lproj/InfoPlist.strings",
              home + "/Lumaris.app/Contents/Frameworks/QtWidgets.framework/Versions/5/QtWidgets",
              home + "/Lumaris.app/Contents/Frameworks/plugins/imageformats/libqjpeg.so",
              std::string("/Users/bob/Documents"), other + "/ui.pid", other + resources + "INFO",
              other + resources +
                  "help/\xc3\x9c"
                  "bersicht.txt",
              other + resources +
                  "help/Gru\xcc\x88\xc3\x9f"
                  "e.txt",
              "/Users/\xe5\xb1\xb1\xe7\x94\xb0" + resources +
                  "help/"
                  "\xe3\x83\x90\xe3\x83\x83\xe3\x82\xaf\xe3\x82\xa2\xe3\x83\x83\xe3\x83\x97.txt",
              "/Applications/LumarisLauncher.app/Contents/Resources/package/lumaris.wpk" +
                  std::string(40, 'x')}) {
            result.push_back({text, text});
        }
        return result;
    }();
    return paths;
}

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    CompareStrings();
    CompareLogging();
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(WorkFolder());
}
