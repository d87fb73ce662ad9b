// SPDX-License-Identifier: MIT
#pragma once

#include "lumaris-service.h"

/// The service for macOS: decides about the upgrade, stops the running client and opens the bundle.
/// It calls no macOS API itself (platform/ does), so it is compiled, run and tested on every
/// system.
///
/// Used on the worker thread, in the order `PreUpgrade`, `IsNeedUpgrade`, `HandlePackageUpgrade`
/// (only when needed), `RemoveAgedFolders`, `PostUpgrade`.
class MacService : public Service {
public:
    MacService();
    ~MacService() override;

    /// The process-wide instance.
    static MacService &GetInstace();

    /// Ends the client named by its pid file; blocks for up to about 5 seconds.
    void StopService() override;
    /// Stops the client and replaces the per-user bundle. 0 for success.
    int HandlePackageUpgrade() override;
    /// Opens the per-user bundle; a failure is only logged.
    void PostUpgrade() override;
    /// Loads and logs both versions.
    void PreUpgrade() override;
    /// True when the client is missing or older than the shipped package.
    bool IsNeedUpgrade() override;

    /// True when the per-user client executable exists.
    bool PerUserBinPathExist();
    /// Unregisters the per-user bundle and opens it. 0, or -1 when it could not be opened.
    static int LaunchPerUserBin();

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};
