// SPDX-License-Identifier: MIT
#include <clocale>
#include <cstdio>
#include <cstring>

#include "extractor.h"
#include "file-op.h"

// usage: operation extract PACKAGE FOLDER | remove PATH
// Runs one operation of the launcher, to be measured beside the command that does the same.
int main(int argc, char **argv) {
    std::setlocale(LC_ALL, "");  // as the launcher does: names in a zip are converted
    const char *const name = argc > 1 ? argv[1] : "";
    if (argc == 3 && std::strcmp(name, "remove") == 0) {
        return FSRemove(argv[2], false) == 0 ? 0 : 1;
    }
    if (argc == 4 && std::strcmp(name, "extract") == 0) {
        Extractor extractor;
        extractor.m_src_path = argv[2];
        extractor.m_dest_path = argv[3];
        return extractor.Extract() == 0 ? 0 : 1;
    }
    std::fprintf(stderr, "usage: operation extract PACKAGE FOLDER | remove PATH\n");
    return 2;
}
