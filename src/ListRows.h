#pragma once

#include <DisplayAPI/List.h>
#include <DisplayAPI/ListBoxPrivateIfc.h>

#include "BoxRows.h"
#include "HeldDialer.h"

namespace DisplayAPI {

/// The rows of a list, and what they ask of its half. Threads: GUI thread.
class List::Rows final : public BoxRows<ListBoxPrivateIfc> {
public:
    using BoxRows::BoxRows;
};

}
