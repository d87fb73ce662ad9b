// SPDX-License-Identifier: MIT
#include "output-folder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "package-rules.h"
#include "unique-fd.h"

namespace fs = std::filesystem;

OutputFolder::OutputFolder(const std::string &path) : m_path(path) {
    while (m_path.size() > 1 && m_path.back() == '/') {
        m_path.pop_back();
    }
    const fs::file_status status = fs::symlink_status(m_path);
    if (fs::exists(status) && !(fs::is_directory(status) && fs::is_empty(m_path))) {
        throw std::runtime_error("the output " + Quoted(m_path) + " exists");
    }
    std::string temporary = m_path + ".XXXXXX";
    if (mkdtemp(temporary.data()) == nullptr) {
        throw SystemError("cannot create " + Quoted(m_path));
    }
    m_temporary = temporary;
    chmod(m_temporary.c_str(), 0755);
}

OutputFolder::~OutputFolder() {
    if (!m_temporary.empty()) {
        std::error_code ignored;
        fs::remove_all(m_temporary, ignored);
    }
}

void OutputFolder::MakeFolder(const std::string &name) {
    if (mkdir((m_temporary + "/" + name).c_str(), 0755) != 0) {
        throw SystemError("cannot create " + Quoted(m_path + "/" + name));
    }
}

void OutputFolder::MakeFile(const std::string &name, const std::function<void(int fd)> &write) {
    const std::string path = m_temporary + "/" + name;
    const UniqueFd file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644));
    if (file.Get() < 0) {
        throw SystemError("cannot create " + Quoted(m_path + "/" + name));
    }
    write(file.Get());
    if (fsync(file.Get()) != 0) {
        throw SystemError("cannot write " + Quoted(name));
    }
}

void OutputFolder::Publish() {
    // Replaces an empty folder in one step, and fails when somebody filled it meanwhile.
    if (rename(m_temporary.c_str(), m_path.c_str()) != 0) {
        throw SystemError("cannot create " + Quoted(m_path));
    }
    m_temporary.clear();
}

void WriteText(int fd, std::string_view text, const std::string &name) {
    while (!text.empty()) {
        const ssize_t n = write(fd, text.data(), text.size());
        if (n < 0) {
            throw SystemError("cannot write " + Quoted(name));
        }
        text.remove_prefix(static_cast<std::size_t>(n));
    }
}
