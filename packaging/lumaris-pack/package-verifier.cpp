#include "package-verifier.h"

#include <sys/stat.h>

#include <map>
#include <new>
#include <utility>

#include "archive-handle.h"
#include "package-rules.h"

namespace {

// The launcher's.
constexpr std::size_t kReadBlockSize = 10240;

class Verifier {
public:
    explicit Verifier(const std::string &path) : m_archive(archive_read_new()) {
        if (!m_archive) {
            throw std::bad_alloc();
        }
        archive_read_support_filter_all(m_archive.get());
        archive_read_support_format_all(m_archive.get());
        m_open =
            archive_read_open_filename(m_archive.get(), path.c_str(), kReadBlockSize) == ARCHIVE_OK;
    }

    PackageReport Run() {
        if (!m_open) {
            Refuse("cannot be opened: " + ArchiveErrorText(m_archive.get()));
            return m_report;
        }
        while (NextEntry()) {
        }
        m_links.Check(m_report.problems);
        if (m_complete) {
            CheckEnd();
        }
        return m_report;
    }

private:
    // False at the end and where reading cannot go on.
    bool NextEntry() {
        archive_entry *entry = nullptr;
        const int status = archive_read_next_header(m_archive.get(), &entry);
        if (status == ARCHIVE_EOF) {
            m_complete = true;
            return false;
        }
        ++m_report.entries;
        if (status != ARCHIVE_OK) {
            Refuse(Label(entry) + " cannot be read: " + ArchiveErrorText(m_archive.get()));
        }
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN) {
            return false;
        }
        CheckEntry(entry);
        return CheckData(entry);
    }

    void CheckEntry(archive_entry *entry) {
        const char *raw = archive_entry_pathname(entry);
        if (raw == nullptr) {
            Refuse(Label(entry) + " has no name that can be read in every locale");
            return;
        }
        std::string name = raw;
        while (name.size() > 1 && name.back() == '/') {
            name.pop_back();  // formats mark folders so
        }
        m_before_last = std::exchange(m_last, name);
        const std::string name_problem = NameProblem(name);
        if (!name_problem.empty()) {
            Refuse(entry, name_problem);
            return;
        }
        const mode_t mode = archive_entry_mode(entry);
        if (archive_entry_hardlink(entry) != nullptr) {
            Refuse(entry, "is a hard link");
        } else {
            Refuse(entry, ModeProblem(mode));
        }
        if (S_ISDIR(mode) && (mode & S_IRWXU) != S_IRWXU) {
            Refuse(entry, "is a folder that its owner cannot read, write and search");
        }
        CheckPlace(entry, name);
        CheckLink(entry, name);
        m_modes[name] = mode;
    }

    void CheckPlace(archive_entry *entry, const std::string &name) {
        const std::string parent = ParentName(name);
        const auto found = m_modes.find(parent);
        if (!parent.empty() && (found == m_modes.end() || !S_ISDIR(found->second))) {
            Refuse(entry, "does not come after the folder that it lies in");
        }
        if (m_modes.count(name) > 0) {
            Refuse(entry, "is there twice");
        }
    }

    void CheckLink(archive_entry *entry, const std::string &name) {
        if (archive_entry_filetype(entry) != AE_IFLNK) {
            return;
        }
        const char *target = archive_entry_symlink(entry);
        if (target == nullptr) {
            Refuse(entry, "points to a name that cannot be read in every locale");
        } else {
            m_links.Add(name, target);
        }
    }

    bool CheckData(archive_entry *entry) {
        const void *block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        int status = ARCHIVE_OK;
        while (status == ARCHIVE_OK) {
            status = archive_read_data_block(m_archive.get(), &block, &size, &offset);
        }
        if (status == ARCHIVE_EOF) {
            return true;
        }
        Refuse(entry, "has data that cannot be read: " + ArchiveErrorText(m_archive.get()));
        return status == ARCHIVE_WARN || status == ARCHIVE_FAILED;
    }

    void CheckEnd() {
        if (m_last != kClientInfo) {
            Refuse("the last entry is not " + Quoted(kClientInfo));
        }
        if (m_before_last != kClientExecutable) {
            Refuse("the last entry but one is not " + Quoted(kClientExecutable));
        }
        for (const std::string name : {kClientExecutable, kClientInfo}) {
            const auto found = m_modes.find(name);
            const std::string problem =
                found == m_modes.end() ? "is missing" : ClientFileProblem(name, found->second);
            if (!problem.empty()) {
                Refuse(Quoted(name) + " " + problem);
            }
        }
    }

    std::string Label(archive_entry *entry) const {
        const char *name = entry == nullptr ? nullptr : archive_entry_pathname(entry);
        return name == nullptr ? "entry " + std::to_string(m_report.entries) : Quoted(name);
    }

    void Refuse(const std::string &problem) { m_report.problems.push_back(problem); }

    void Refuse(archive_entry *entry, const std::string &problem) {
        if (!problem.empty()) {
            Refuse(Label(entry) + " " + problem);
        }
    }

    ArchiveReader m_archive;
    bool m_open = false;
    bool m_complete = false;
    PackageReport m_report;
    LinkTable m_links;
    std::map<std::string, mode_t> m_modes;
    std::string m_last;
    std::string m_before_last;
};

}  // namespace

PackageReport VerifyPackage(const std::string &path) {
    return Verifier(path).Run();
}
