// SPDX-License-Identifier: MIT
#pragma once

#include "lumaris-service.h"

/// The service's base with the platform left out.
class PlainService : public Service {
public:
    PlainService() { m_user_app_path = GetUserLumarisAppInstallPath(); }
    void StopService() override {}
    int HandlePackageUpgrade() override { return 0; }
    void PostUpgrade() override {}
    void PreUpgrade() override {}
    bool IsNeedUpgrade() override { return false; }
};
