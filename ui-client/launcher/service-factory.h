// SPDX-License-Identifier: MIT
#pragma once

class Service;

/// A new service for this system; the caller owns it. Tests link a double in place of this
/// function.
Service *NewService();
