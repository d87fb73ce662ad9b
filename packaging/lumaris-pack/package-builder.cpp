// SPDX-License-Identifier: MIT
#include "package-builder.h"

#include <filesystem>

#include "client-layout.h"
#include "output-folder.h"
#include "package-error.h"
#include "package-rules.h"

namespace fs = std::filesystem;

namespace {

constexpr char kPackageFolder[] = "package";

// An output inside the bundle would make the next package another one.
void RequireOutside(const BuildRequest &request) {
    const fs::path client = fs::weakly_canonical(request.client) / "";
    const fs::path output = fs::weakly_canonical(request.output) / "";
    if (output.native().compare(0, client.native().size(), client.native()) == 0) {
        throw PackageError("the output " + Quoted(request.output) + " lies in the client bundle");
    }
}

}  // namespace

std::vector<std::string> BuildPackage(const BuildRequest &request,
                                      const PackageProgress &progress) {
    RequireOutside(request);
    ClientFolder client = ListClientFolder(request.client);
    if (client.problems.empty()) {
        const std::string difference = InfoDifference(client.Locate(kClientInfo), request.version);
        if (!difference.empty()) {
            client.problems.push_back(Quoted(kClientInfo) + " " + difference);
        }
    }
    if (!client.problems.empty()) {
        return client.problems;
    }

    OutputFolder output(request.output);
    output.MakeFolder(kPackageFolder);
    UniqueFd package = output.MakeFile(kPackageFile);
    WritePackage(client, request.options, package.Get(), progress);
    FinishFile(std::move(package), kPackageFile);
    UniqueFd info = output.MakeFile(kInfoFile);
    WriteText(info.Get(), InfoText(request.version), kInfoFile);
    FinishFile(std::move(info), kInfoFile);
    output.Publish();
    return {};
}
