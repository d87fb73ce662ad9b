// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <stdexcept>
#include <string>

/// What stops packing: a fault of the machine or of the input, told in one line for the user.
class PackageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
    PackageError(const std::string &action, int error_number)
        : std::runtime_error(action + ": " + std::strerror(error_number)) {}
};
