#pragma once

namespace DisplayAPI {

/// The kind of a conversation, by its number. No number is shown on this telephone.
class ConversationType {
public:
    enum Type : int {};
};

}
