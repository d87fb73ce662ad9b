// SPDX-License-Identifier: MIT
#pragma once

#include "logger.h"

// A module that logs defines LOG_MODULE (its name, a string literal) and LOG_COMPONENT (a constant
// ustring, built once) before its first message. The macros start every message with its level tag,
// module name and source line; the caller ends it with a line break.

#define LOG_MESSAGE(level, format, ...)                        \
    Logger::LogMsg(Logger::LEVEL_##level, LOG_COMPONENT,       \
                   "[" #level "] " LOG_MODULE "(%d): " format, \
                   __LINE__ __VA_OPT__(, ) __VA_ARGS__)

#define MSG_ERROR(...) LOG_MESSAGE(ERROR, __VA_ARGS__)
#define MSG_WARNING(...) LOG_MESSAGE(WARNING, __VA_ARGS__)
#define MSG_NOTE(...) LOG_MESSAGE(NOTE, __VA_ARGS__)
#define MSG_INFO(...) LOG_MESSAGE(INFO, __VA_ARGS__)
#define MSG_DEBUG(...) LOG_MESSAGE(DEBUG, __VA_ARGS__)
