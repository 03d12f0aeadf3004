#pragma once

/// Marks what `libMessageInterface` exports, and what a device module exports of its own
/// (`ZUL_MODULE_EXPORT`).
#if defined(_WIN32)
#if defined(MESSAGE_INTERFACE_BUILD)
#define MESSAGE_INTERFACE_EXPORT __declspec(dllexport)
#else
#define MESSAGE_INTERFACE_EXPORT __declspec(dllimport)
#endif
#define ZUL_MODULE_EXPORT extern "C" __declspec(dllexport)
#else
#define MESSAGE_INTERFACE_EXPORT __attribute__((visibility("default")))
#define ZUL_MODULE_EXPORT extern "C" __attribute__((visibility("default")))
#endif
