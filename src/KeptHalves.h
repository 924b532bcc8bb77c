#pragma once

namespace DisplayAPI {

/// True inside deleteKeptHalves(), on this thread. No subscriber is told then: he might delete the screen in the midst
/// of the operation that has come there.
bool areKeptHalvesGoing();

}
