#pragma once

/// What `phone --tour` plays.
extern const char* const Tour;
