// SPDX-License-Identifier: MIT
#include <QApplication>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "extractor.h"
#include "launcher.h"
#include "lumaris-service.h"
#include "notify-adapter.h"
#include "service-factory.h"
#include "str-table.h"

// usage: dialog-timing PACKAGE FOLDER silent|reports|dialog
// Prints the seconds of one extraction by the launcher's own controller and worker, whose reports
// go to nobody (silent), to the hidden dialog (reports) or to the visible one (dialog).

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

/// A service that only extracts. An upgrade would show the dialog, so the other modes extract
/// before the decision.
class ExtractingService : public Service {
public:
    void StopService() override {}
    void PreUpgrade() override {
        if (!IsNeedUpgrade()) {
            Extract();
        }
    }
    bool IsNeedUpgrade() override { return std::strcmp(mode, "dialog") == 0; }
    int HandlePackageUpgrade() override {
        Extract();
        return 0;
    }
    void PostUpgrade() override {}
};

}  // namespace

Service *NewService() {
    return new ExtractingService;
}

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
