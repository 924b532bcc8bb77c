#pragma once

/// Marks what libdisplaytoolkit.so gives to its users; everything else stays inside.
#define TOOLKIT_EXPORT __attribute__((visibility("default")))
