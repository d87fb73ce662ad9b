// SPDX-License-Identifier: MIT
#include <QApplication>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "extractor.h"
#include "launcher.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "str-table.h"

// usage: dialog-timing PACKAGE FOLDER silent|reports|dialog
// Prints the seconds that one extraction takes while the launcher's own controller and worker run:
// with nobody listening, with the hidden dialog following the reports, or with the visible one.

namespace {

Extractor extractor;
const char *mode = "";

void Extract() {
    const auto start = std::chrono::steady_clock::now();
    const int result = extractor.Extract();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    if (result == 0) {
        std::printf("%.6f\n", time.count());
    }
}

}  // namespace

// A service that does nothing else, linked in place of the real one. Only an upgrade shows the
// dialog, so the other modes extract before the decision.
MacService::MacService() = default;
MacService::~MacService() = default;
void MacService::StopService() {}
void MacService::PreUpgrade() {
    if (!IsNeedUpgrade()) {
        Extract();
    }
}
bool MacService::IsNeedUpgrade() {
    return std::strcmp(mode, "dialog") == 0;
}
int MacService::HandlePackageUpgrade() {
    Extract();
    return 0;
}
void MacService::PostUpgrade() {}

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: dialog-timing PACKAGE FOLDER silent|reports|dialog\n");
        return 2;
    }
    extractor.m_src_path = argv[1];
    extractor.m_dest_path = argv[2];
    mode = argv[3];
    StrTable::InitStrTable();
    Launcher launcher;
    if (std::strcmp(mode, "silent") == 0) {
        Notify_Adapter::GetInstance().disconnect();
    }
    launcher.Run();
    launcher.Start();
    return QApplication::exec();
}
