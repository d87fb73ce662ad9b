// SPDX-License-Identifier: MIT
#include "package-builder.h"

#include <filesystem>
#include <stdexcept>

#include "output-folder.h"
#include "package-rules.h"

namespace fs = std::filesystem;

namespace {

constexpr char kPackageFolder[] = "package";

// An output inside the bundle would make the next package another one.
void RequireOutside(const BuildRequest &request) {
    const fs::path client = fs::weakly_canonical(request.client) / "";
    const fs::path output = fs::weakly_canonical(request.output) / "";
    if (output.native().compare(0, client.native().size(), client.native()) == 0) {
        throw std::runtime_error("the output " + Quoted(request.output) +
                                 " lies in the client bundle");
    }
}

// How the INFO file of the bundle, read as the launcher reads it, differs from the version; empty
// when all values agree.
std::string InfoDifference(const BuildRequest &request) {
    const InfoTexts texts = ReadInfoFile((request.client + "/" + kClientInfo).c_str());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string found = texts[i] ? texts[i]->toStdString() : std::string();
        if (found != request.version[i]) {
            return "has " + std::string(kVersionKeys[i]) + " " + Quoted(found) +
                   ", the package would have " + Quoted(request.version[i]);
        }
    }
    return {};
}

std::string InfoText(const BuildRequest &request) {
    std::string text = "[Version]\n";
    for (std::size_t i = 0; i < request.version.size(); ++i) {
        text += std::string(kVersionKeys[i]) + "=" + request.version[i] + "\n";
    }
    return text;
}

}  // namespace

std::vector<std::string> BuildPackage(const BuildRequest &request,
                                      const PackageProgress &progress) {
    RequireOutside(request);
    const ClientFolder client = ListClientFolder(request.client);
    if (!client.problems.empty()) {
        return client.problems;
    }
    const std::string difference = InfoDifference(request);
    if (!difference.empty()) {
        return {Quoted(kClientInfo) + " " + difference};
    }
    OutputFolder output(request.output);
    output.MakeFolder(kPackageFolder);
    output.MakeFile(kPackageFile, [&client, &request, &progress](int fd) {
        WritePackage(client, request.options, fd, progress);
    });
    output.MakeFile(kInfoFile, [&request](int fd) { WriteText(fd, InfoText(request), kInfoFile); });
    output.Publish();
    return {};
}
