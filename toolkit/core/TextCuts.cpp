#include "TextCuts.h"

#include <utility>

namespace {

TextCuts::Watcher& theWatcher()
{
    static TextCuts::Watcher watcher;
    return watcher;
}

}

void TextCuts::watch(Watcher watcher)
{
    theWatcher() = std::move(watcher);
}

void TextCuts::tell(const UString& text, int columns)
{
    if (theWatcher())
        theWatcher()(text, columns);
}
