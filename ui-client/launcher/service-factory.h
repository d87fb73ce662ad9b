// SPDX-License-Identifier: MIT
#pragma once

class Service;

/// A new service for this system; the caller owns it. Tests link another one in its place.
Service *NewService();
