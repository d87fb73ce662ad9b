// SPDX-License-Identifier: MIT
#include "service-factory.h"

#include "mac/mac-service.h"

Service *NewService() {
    return new MacService;
}
