#pragma once

#include <string>

namespace Simulator {

/// A part of the page that shows the telephone in a browser.
struct WebPart {
    const char* path;
    const char* type; ///< As HTTP names it.
    std::string body;
};

/// The part at a path, such as "/"; null for another.
const WebPart* webPart(const std::string& path);

}
