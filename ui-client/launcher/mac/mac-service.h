// SPDX-License-Identifier: MIT
#pragma once

#include "lumaris-service.h"

/// The service for macOS: decides about the upgrade, stops the running client and opens the bundle.
/// It calls nothing of macOS itself (see platform/) and is compiled, run and tested on every
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
    /// Opens the per-user bundle; a failure is logged only.
    void PostUpgrade() override;
    /// Loads and logs both versions.
    void PreUpgrade() override;
    /// True when the client is missing or older than the shipped package.
    bool IsNeedUpgrade() override;

    /// True when the per-user client executable exists.
    bool PerUserBinPathExist();
    /// Makes the desktop forget and open the per-user bundle. 0, or -1 when it could not be opened.
    static int LaunchPerUserBin();

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};
