// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "unique-fd.h"

/// A folder that appears under its name complete or not at all.
///
/// Everything goes into a sibling with a temporary name, which the destructor removes unless
/// `Publish` gave it the final name.
class OutputFolder {
public:
    /// `path` may not exist, or be an empty folder. Throws PackageError.
    explicit OutputFolder(const std::string &path);
    OutputFolder(const OutputFolder &) = delete;
    OutputFolder &operator=(const OutputFolder &) = delete;
    ~OutputFolder();

    void MakeFolder(const std::string &name);
    /// Creates a file of that name, open for writing.
    UniqueFd MakeFile(const std::string &name);
    void Publish();

private:
    std::string m_path;
    std::string m_temporary;
};

/// Waits until the file is on the disk and closes it; `name` is for the error message.
void FinishFile(UniqueFd file, const std::string &name);

/// Writes all of `text`; `name` is for the error message.
void WriteText(int fd, std::string_view text, const std::string &name);
