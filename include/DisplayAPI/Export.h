#pragma once

/// Marks what libDisplayAPI.so gives to its users; everything else stays inside.
#define DISPLAYAPI_EXPORT __attribute__((visibility("default")))
