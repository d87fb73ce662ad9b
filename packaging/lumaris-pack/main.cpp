// SPDX-License-Identifier: MIT
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <limits>
#include <stdexcept>

#include "archive-handle.h"
#include "package-builder.h"
#include "package-rules.h"
#include "package-verifier.h"
#include "progress-bar.h"

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kWrongUsage = 2 };

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

volatile std::sig_atomic_t g_interrupted = 0;

void Interrupt(int) {
    g_interrupted = 1;
}

void PrintLine(const std::string &line) {
    std::fprintf(stderr, "lumaris-pack: %s\n", line.c_str());
}

std::string ToBytes(const QString &text) {
    return QFile::encodeName(text).toStdString();
}

void AddOptions(QCommandLineParser &parser) {
    const auto add = [&parser](const char *name, const char *value, const char *description,
                               const char *initial = "") {
        parser.addOption({QLatin1String(name), QLatin1String(description), QLatin1String(value),
                          QLatin1String(initial)});
    };
    parser.setApplicationDescription(QStringLiteral(
        "Packages a client bundle for the launcher, or checks a package.\n"
        "OUT gets package/lumaris.wpk and INFO; it may not exist yet, or be an empty folder."));
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    add("major", "N", "Major version.");
    add("minor", "N", "Minor version.");
    add("build", "N", "Build number; the launcher installs a package with a greater one.");
    add("icon-overlay", "N", "Version of the icon overlay (1).", "1");
    add("format", "FORMAT", "gnutar (default) or zip.");
    add("filter", "FILTER", "zstd (default), xz or none; of gnutar only.");
    add("level", "N", "Compression level of the filter, or of zip.");
    add("verify", "FILE", "List what speaks against the package FILE.");
    parser.addPositionalArgument(QStringLiteral("Client.app"), QStringLiteral("Client bundle."));
    parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("Folder to make."));
}

// Digits alone: no sign, no leading zero.
qlonglong ParseNumber(const QString &text, const std::string &what, qlonglong highest) {
    bool ok = false;
    const qlonglong number = text.toLongLong(&ok);
    if (!ok || number < 0 || number > highest || QString::number(number) != text) {
        throw UsageError(what + " " + Quoted(ToBytes(text)) + " is not a number from 0 to " +
                         std::to_string(highest));
    }
    return number;
}

int NumberOption(const QCommandLineParser &parser, const char *name) {
    if (parser.value(QLatin1String(name)).isEmpty()) {
        throw UsageError(std::string("--") + name + " is missing");
    }
    // The launcher compares builds as int.
    return static_cast<int>(ParseNumber(parser.value(QLatin1String(name)), std::string("--") + name,
                                        std::numeric_limits<int>::max()));
}

// Builds that start from the same sources agree on this variable.
std::time_t EntryTime() {
    const QString text = qEnvironmentVariable("SOURCE_DATE_EPOCH");
    return text.isEmpty()
               ? 0
               : ParseNumber(text, "SOURCE_DATE_EPOCH", std::numeric_limits<std::time_t>::max());
}

PackageOptions ReadOptions(const QCommandLineParser &parser) {
    const auto value = [&parser](const char *name) {
        return parser.value(QLatin1String(name)).toStdString();
    };
    const std::string format_name = value("format").empty() ? "gnutar" : value("format");
    const PackageCoding *format = FindFormat(format_name);
    if (format == nullptr) {
        throw UsageError("there is no format " + Quoted(format_name));
    }
    // Small, read quickly, and its checksum covers names and permissions as well as content.
    const std::string initial_filter = format->Compresses() ? "none" : "zstd";
    const std::string name = value("filter").empty() ? initial_filter : value("filter");
    const PackageCoding *filter = FindFilter(name);
    if (filter == nullptr) {
        throw UsageError("there is no filter " + Quoted(name));
    }
    if (format->Compresses() && filter->Compresses()) {
        throw UsageError(std::string(format->name) + " compresses by itself and takes no filter");
    }
    const PackageCoding &coding = format->Compresses() ? *format : *filter;
    int level = coding.default_level;
    if (parser.isSet(QStringLiteral("level"))) {
        level = NumberOption(parser, "level");
        if (!coding.Compresses() || level < coding.lowest_level || level > coding.highest_level) {
            throw UsageError(std::string(coding.name) + " has no level " + std::to_string(level));
        }
    }
    return {format, filter, level, EntryTime()};
}

BuildRequest ReadRequest(const QCommandLineParser &parser) {
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != 2) {
        throw UsageError("a client bundle and an output folder are needed");
    }
    const auto number = [&parser](const char *name) {
        return std::to_string(NumberOption(parser, name));
    };
    return {ToBytes(paths[0]),
            ToBytes(paths[1]),
            {number("major"), number("minor"), number("build"), number("icon-overlay")},
            ReadOptions(parser)};
}

ExitStatus Pack(const BuildRequest &request) {
    // Stopped between two blocks, the temporary output is removed as after any failure.
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, Interrupt) == SIG_IGN) {
            std::signal(signal, SIG_IGN);  // nohup, or a job in the background
        }
    }
    ProgressBar bar;
    const auto problems = BuildPackage(request, [&bar](std::uint64_t done, std::uint64_t total) {
        bar.Show(done, total);
        return g_interrupted == 0;
    });
    for (const std::string &problem : problems) {
        PrintLine(problem);
    }
    return problems.empty() ? kSuccess : kFailure;
}

ExitStatus Verify(const QCommandLineParser &parser) {
    if (!parser.positionalArguments().isEmpty()) {
        throw UsageError("--verify takes one package and nothing else");
    }
    const std::string path = ToBytes(parser.value(QStringLiteral("verify")));
    const PackageReport report = VerifyPackage(path);
    for (const std::string &problem : report.problems) {
        PrintLine(Quoted(path) + ": " + problem);
    }
    if (!report.problems.empty()) {
        return kFailure;
    }
    const char *const protection =
        report.protection == Protection::kEverything ? "everything is under a checksum"
        : report.protection == Protection::kContents
            ? "contents are under checksums, names, types and permissions are not"
            : "nothing is under a checksum";
    std::printf("%llu entries; %s\n", static_cast<unsigned long long>(report.entries), protection);
    return kSuccess;
}

ExitStatus Run(const QStringList &arguments) {
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(arguments)) {
        throw UsageError(parser.errorText().toStdString());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        parser.showHelp(kSuccess);
    }
    return parser.isSet(QStringLiteral("verify")) ? Verify(parser) : Pack(ReadRequest(parser));
}

}  // namespace

int main(int argc, char **argv) {
    // Paths on the command line are UTF-8 whatever the locale; Qt 5 would ask the locale and Qt 6
    // complain about another one.
    setenv("LC_ALL", "C.UTF-8", 1);
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();  // settles how Qt 5 reads names
    QCoreApplication::setApplicationName(QStringLiteral("lumaris-pack"));
    PinArchiveEnvironment();
    try {
        return Run(arguments);
    } catch (const UsageError &error) {
        PrintLine(error.what());
        return kWrongUsage;
    } catch (const std::exception &error) {
        PrintLine(error.what());
        return kFailure;
    }
}
