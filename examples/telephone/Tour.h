#pragma once

/// The script of the tour, which shows what the telephone can do.
extern const char* const Tour;
