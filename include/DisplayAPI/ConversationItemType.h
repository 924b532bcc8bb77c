#pragma once

namespace DisplayAPI {

/// What a row of a conversation is, by its number. No number is shown on this telephone.
class ConversationItemType {
public:
    enum Type : int {};
};

}
