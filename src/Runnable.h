#pragma once

namespace DisplayAPI {

/// A job for a DisplayThread, which deletes it after run().
class Runnable {
public:
    virtual ~Runnable() = default;
    virtual void run() = 0;
};

}
