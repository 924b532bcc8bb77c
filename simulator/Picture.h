#pragma once

#include <cstdint>
#include <string>
#include <vector>

class UScreenWE1;

namespace Simulator {

/// A picture of the screen as it looks on the desk: dark pixels on a green glass in a dark frame.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes; ///< Red, green and blue of each pixel, row by row.

    bool operator==(const Picture&) const = default;
};

/// Draws the screen with `scale` pixels for each of its own.
Picture drawPicture(const UScreenWE1& screen, int scale);

/// What is dark in `shown` alone is red, what is dark in `golden` alone is blue, and what both have is pale.
Picture drawDifference(const Picture& golden, const Picture& shown);

/// The picture as the bytes of a PNG file; it may have up to 256 colours. Throws std::runtime_error when that fails.
std::string encodePicture(const Picture& picture);

/// Writes the picture as a PNG file. Throws std::runtime_error with the file's name when that fails.
void writePicture(const Picture& picture, const std::string& file);

/// Reads a PNG file, of any kind. Throws std::runtime_error with the file's name when that fails.
Picture readPicture(const std::string& file);

}
