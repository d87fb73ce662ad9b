// Bytes as a package: counted, listed and extracted into a fresh folder. A success reports every
// entry counted (a damaged package may yield more), and nothing beside the folder changes unless
// the package holds a link.

#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/resource.h>
#include <sys/statvfs.h>

#include <QCoreApplication>
#include <QObject>
#include <csignal>
#include <cstring>
#include <functional>
#include <string_view>

#include "fuzz-support.h"
#include "logger.h"
#include "notify-adapter.h"

// libarchive is not instrumented: what it was led to do is told to the fuzzer through these.
__attribute__((section("__libfuzzer_extra_counters"))) static uint8_t reached[4096];

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t max);

namespace {

char *log_text = nullptr;
size_t log_size = 0;
int reports = 0, reported_total = 0;

void Reach(const std::string &what) {
    ++reached[std::hash<std::string>()(what) % sizeof(reached)];
}

/// The letters of every message; names and numbers would make each one new.
void ReachMessages() {
    fflush(Logger::log_fp);
    std::string_view log(log_text, log_size);
    for (size_t at = log.find("): "); at != log.npos; at = log.find("): ", at + 1)) {
        std::string letters;
        for (const char c : log.substr(at, 60))
            if (isalpha(static_cast<unsigned char>(c)) != 0)
                letters += c;
        Reach(letters);
    }
    rewind(Logger::log_fp);
}

/// Looks the package over; true when it holds a link of either kind.
bool HoldsLink(const fs::path &package) {
    struct archive *reader = archive_read_new();
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    archive_read_open_filename(reader, package.c_str(), 10240);
    struct archive_entry *entry = nullptr;
    bool link = false;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        link = link || archive_entry_symlink(entry) != nullptr ||
               archive_entry_hardlink(entry) != nullptr;
        Reach(std::to_string(archive_format(reader)) + "," +
              std::to_string(archive_filter_code(reader, 0)) + "," +
              std::to_string(archive_entry_filetype(entry)));
    }
    archive_read_free(reader);
    return link;
}

void Unlock(const fs::path &path) {
    std::error_code error;
    if (fs::symlink_status(path).type() != fs::file_type::directory)
        return;
    fs::permissions(path, fs::perms::owner_all, error);
    for (const fs::directory_entry &entry : fs::directory_iterator(path, error))
        Unlock(entry.path());
}

/// Folders may lack permissions, and be deeper than a path can say.
void Remove(const fs::path &folder) {
    std::error_code error;
    Unlock(folder);
    fs::remove_all(folder, error);
    if (error) {
        const std::string quoted = " '" + folder.string() + "'";
        MUST(system(("/bin/chmod -R u+rwx" + quoted + "; /bin/rm -rf" + quoted).c_str()) == 0);
    }
}

/// What lies beside the destination; a nameless entry may have taken the place of that itself.
std::string Beside(const fs::path &dest) {
    std::string state;
    for (const fs::path &folder : {dest.parent_path(), dest.parent_path().parent_path()})
        for (const fs::directory_entry &entry : fs::directory_iterator(folder))
            if (entry.path() != dest)
                state += entry.path().string() + " " +
                         (entry.is_regular_file() ? std::to_string(entry.file_size()) : "") + "\n";
    return state;
}

}  // namespace

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
    WriteFile(OwnFolder() / "levels", "extractor_debug=7");
    Logger::Initialize(Logger::TYPE_STDERR, "", (OwnFolder() / "levels").c_str(), 1);
    Logger::log_fp = open_memstream(&log_text, &log_size);
    QObject::connect(&Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &app,
                     [](int total, int current) {
                         MUST(current == ++reports);
                         reported_total = total;
                     });
    return 0;
}

/// Repairs the checksums of tar headers, or nothing behind them would ever be reached.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t max, unsigned) {
    size = LLVMFuzzerMutate(data, size, max);
    for (uint8_t *block = data; block + 512 <= data + size; block += 512) {
        if (memcmp(block + 257, "ustar", 5) != 0)
            continue;
        memset(block + 148, ' ', 8);
        unsigned sum = 0;
        for (int i = 0; i < 512; ++i)
            sum += block[i];
        snprintf(reinterpret_cast<char *>(block + 148), 8, "%06o", sum);
    }
    return size;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const fs::path folder = OwnFolder() / "run", package = folder / "package", dest = folder / "d";
    fs::create_directories(dest);
    WriteFile(package, Bytes(data, size));
    const bool link = HoldsLink(package);
    const std::string before = Beside(dest);

    Extractor extractor;
    extractor.m_src_path = package.c_str();
    extractor.m_dest_path = dest.c_str();
    const int count = extractor.Count();
    MUST(extractor.List() == (count < 0 ? -1 : 0));
    reports = 0;
    const int result = extractor.Extract();
    MUST(result == 0 || result == -1);
    if (result == 0)
        MUST(count > 0 && reports >= count && reported_total == count);
    if (!link)
        MUST(Beside(dest) == before);
    ReachMessages();
    Remove(folder);
    return 0;
}
