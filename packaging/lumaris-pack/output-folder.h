// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

/// A folder that appears under its name complete or not at all.
///
/// Everything goes into a sibling with a temporary name, which the destructor removes unless
/// `Publish` gave it the final name. Every failure is thrown as a std::runtime_error.
class OutputFolder {
public:
    /// `path` may not exist, or be an empty folder.
    explicit OutputFolder(const std::string &path);
    OutputFolder(const OutputFolder &) = delete;
    OutputFolder &operator=(const OutputFolder &) = delete;
    ~OutputFolder();

    void MakeFolder(const std::string &name);
    /// Creates a file of that name, has `write` fill it and waits until it is on the disk.
    void MakeFile(const std::string &name, const std::function<void(int fd)> &write);
    void Publish();

private:
    std::string m_path;
    std::string m_temporary;
};

/// Writes all of `text`; `name` is for the error message.
void WriteText(int fd, std::string_view text, const std::string &name);
