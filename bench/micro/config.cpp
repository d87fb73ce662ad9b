#include "config.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QSettings>
#include <fstream>

#include "compare.h"

namespace {

constexpr int kLines = 10000;

/// Lines that both readers take, in no order.
const std::string &File() {
    static const std::string path = [] {
        const std::string name = WorkFolder() + "/settings";
        std::ofstream file(name);
        for (int i = 0; i < kLines; ++i)
            file << "component." << i * 7919 % kLines << "_debug = value-" << i << "\n";
        return name;
    }();
    return path;
}

/// Makes the file look changed: the peer keeps what it read for the next reader of the same file.
void Touch() {
    static long seconds = 1000000000;
    const timespec times[2] = {{++seconds, 0}, {seconds, 0}};
    utimensat(AT_FDCWD, File().c_str(), times, 0);
}

[[noreturn]] void WrongCount() {
    std::fprintf(stderr, "settings were not read\n");
    std::abort();
}

}  // namespace

void CompareConfig() {
    Compare(
        "config-read",
        [] {
            Touch();
            Config config;
            if (config.read(File().c_str()) != 0 || config.size() != kLines)
                WrongCount();
            for (const auto &entry : config)
                benchmark::DoNotOptimize(entry.second.c_str());
        },
        [] {
            Touch();
            const QSettings settings(QString::fromStdString(File()), QSettings::IniFormat);
            const QStringList keys = settings.allKeys();
            if (keys.size() != kLines)
                WrongCount();
            for (const QString &key : keys)
                benchmark::DoNotOptimize(settings.value(key).toString().constData());
        });
}
