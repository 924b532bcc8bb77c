#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A screen text taken apart, and judged by its grammar: objects without anything between them, each with its
/// name first, then its fields, then its subitems, which hold a name and fields.
///
/// Three irregular forms are part of the grammar: a form with an open selection list closes twice, a context menu
/// without a start line has no name, and the first title of a tab screen's list ends with a line feed. A document that
/// holds the password of the tests in clear is at fault.
class ScreenTextParser {
public:
    struct Field {
        std::string key;
        std::string value;
    };
    struct Block {
        std::string name; // empty: a block without a name line
        std::vector<Field> fields;
        std::vector<Block> subitems;
    };

    /// The text that every test of a password uses.
    static constexpr std::string_view Password = "Geheim";

    /// Takes a document apart; stops at the first fault.
    explicit ScreenTextParser(std::string_view document);

    const std::vector<Block>& objects() const { return mObjects; }

    /// What breaks the grammar first, with its line; empty for a good document.
    const std::string& fault() const { return mFault; }

    static std::string faultOf(std::string_view document) { return ScreenTextParser(document).fault(); }

private:
    void parseObject();
    void parseSubitem(Block& object);
    bool parseLines(Block& block, std::string_view endLine, bool isObject);
    bool parseField(Block& block, std::string_view line, bool isFirst, bool isObject);
    bool readLine(std::string_view& line);
    bool fail(std::string_view what, std::string_view line);

    std::string_view mRest;
    int mLineNumber = 0;
    std::vector<Block> mObjects;
    std::string mFault;
};
