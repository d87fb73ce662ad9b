#pragma once

#include <CoreServices/CoreServices.h>

// The path functions are marked as deprecated, but their successors do not tell the stored form of
// a path without following a final symbolic link.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
