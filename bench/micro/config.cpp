// SPDX-License-Identifier: MIT
#include "config.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QSettings>
#include <fstream>

#include "compare.h"

namespace {

constexpr int kLines = 10000;

/// Lines that both readers take, in the order of their keys or shuffled.
std::string File(int step) {
    std::string name = WorkFolder() + "/settings";
    std::ofstream file(name);
    for (int i = 0; i < kLines; ++i) {
        char line[64];
        const int key = i * step % kLines;
        std::snprintf(line, sizeof(line), "component.%04d_debug = value-%d\n", key, i);
        file << line;
    }
    return name;
}

/// Makes the file look changed: the peer keeps what it read for the next reader of the same file.
void Touch(const std::string &file) {
    static long seconds = 1000000000;
    const timespec times[2] = {{++seconds, 0}, {seconds, 0}};
    utimensat(AT_FDCWD, file.c_str(), times, 0);
}

[[noreturn]] void WrongCount() {
    std::fprintf(stderr, "settings were not read\n");
    std::abort();
}

void Project(const std::string &file) {
    Touch(file);
    Config config;
    if (config.read(file.c_str()) != 0 || config.size() != kLines) {
        WrongCount();
    }
    for (const auto &entry : config) {
        benchmark::DoNotOptimize(entry.second.c_str());
    }
}

void Peer(const std::string &file) {
    Touch(file);
    const QSettings settings(QString::fromStdString(file), QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    if (keys.size() != kLines) {
        WrongCount();
    }
    for (const QString &key : keys) {
        benchmark::DoNotOptimize(settings.value(key).toString().constData());
    }
}

/// `step` and the number of lines have no common factor: every key is there.
void CompareReading(const std::string &name, int step) {
    const std::pair<const char *, void (*)(const std::string &)> sides[] = {{"project", Project},
                                                                            {"peer", Peer}};
    for (const auto &[side, read] : sides) {
        benchmark::RegisterBenchmark((name + "/" + side).c_str(),
                                     [step, read = read](benchmark::State &state) {
                                         const std::string file = File(step);
                                         for (auto _ : state) {
                                             read(file);
                                         }
                                     });
    }
}

}  // namespace

void CompareConfig() {
    CompareReading("config-read-sorted", 1);
    CompareReading("config-read-shuffled", 7919);
}
