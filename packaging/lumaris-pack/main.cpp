// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <limits>
#include <map>
#include <stdexcept>

#include "archive-handle.h"
#include "package-builder.h"
#include "package-rules.h"
#include "package-verifier.h"

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kWrongUsage = 2 };

using UsageError = std::invalid_argument;

/// The compression levels of a format or filter; all are 0 where nothing is compressed.
struct Levels {
    int lowest;
    int initial;
    int highest;

    bool Compresses() const { return highest > 0; }
};

using Codings = std::map<std::string, Levels>;

const Codings kFormats = {{"gnutar", {0, 0, 0}}, {"zip", {1, 6, 9}}};
const Codings kFilters = {{"none", {0, 0, 0}}, {"xz", {0, 6, 9}}, {"zstd", {1, 9, 19}}};

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

/// One line on standard error that fills up; nothing at all when that is no terminal.
class ProgressBar {
public:
    ProgressBar() = default;
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;
    /// Takes the line away again.
    ~ProgressBar() {
        if (m_percent >= 0) {
            std::fputs("\r\033[K", stderr);
        }
    }

    void Show(std::uint64_t done, std::uint64_t total) {
        const int percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
        if (!m_terminal || percent == m_percent) {
            return;
        }
        m_percent = percent;
        constexpr int width = 50;
        const auto filled = static_cast<std::size_t>(percent * width / 100);
        const std::string bar = std::string(filled, '#') + std::string(width - filled, ' ');
        std::fprintf(stderr, "\r[%s] %3d %%", bar.c_str(), percent);
        std::fflush(stderr);
    }

private:
    const bool m_terminal = isatty(STDERR_FILENO) == 1;
    int m_percent = -1;
};

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
    add("format", "FORMAT", "gnutar (default) or zip.", "gnutar");
    add("filter", "FILTER", "zstd (default), xz or none; of gnutar only.");
    add("level", "N", "Compression level of the filter, or of zip.");
    add("verify", "FILE", "List what speaks against the package FILE.");
    parser.addPositionalArgument(QStringLiteral("Client.app"), QStringLiteral("Client bundle."));
    parser.addPositionalArgument(QStringLiteral("OUT"), QStringLiteral("Folder to make."));
}

// Digits alone: no sign, no leading zero.
qlonglong ParseNumber(const QString &text, const std::string &what, qlonglong highest) {
    const qlonglong number = text.toLongLong();  // 0 for what is no number
    if (number < 0 || number > highest || QString::number(number) != text) {
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

const Levels &FindLevels(const Codings &codings, const char *kind, const std::string &name) {
    const auto found = codings.find(name);
    if (found == codings.end()) {
        throw UsageError(std::string("there is no ") + kind + " " + Quoted(name));
    }
    return found->second;
}

PackageOptions ReadOptions(const QCommandLineParser &parser) {
    const std::string format = parser.value(QStringLiteral("format")).toStdString();
    const Levels &of_format = FindLevels(kFormats, "format", format);
    std::string filter = parser.value(QStringLiteral("filter")).toStdString();
    if (filter.empty()) {
        // Small, read quickly, and its checksum covers names and permissions as well as content.
        filter = of_format.Compresses() ? "none" : "zstd";
    }
    const Levels &of_filter = FindLevels(kFilters, "filter", filter);
    if (of_format.Compresses() && of_filter.Compresses()) {
        throw UsageError(format + " compresses by itself and takes no filter");
    }
    const Levels &levels = of_format.Compresses() ? of_format : of_filter;
    int level = levels.initial;
    if (parser.isSet(QStringLiteral("level"))) {
        level = NumberOption(parser, "level");
        if (!levels.Compresses() || level < levels.lowest || level > levels.highest) {
            throw UsageError((of_format.Compresses() ? format : filter) + " has no level " +
                             std::to_string(level));
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
    std::puts(report.summary.c_str());
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
