#include "DisplayPrivate.h"

#include "ContentWidgetIfc.h"
#include "CurrentApplication.h"
#include "ScreenTextWriter.h"

#include <FPKBarMEG.h>
#include <HardwareVersion.h>
#include <StatusVolumeMEG.h>

#include <string_view>

namespace DisplayAPI {

namespace {

/// The status for which the system window's lines are asked: what stands before the icon, else a short head.
std::string statusKeyOf(const std::string& statusStr)
{
    constexpr std::size_t headLength = 5;
    const std::size_t icon = statusStr.find("\nicon0:");
    return statusStr.substr(0, icon != std::string::npos ? icon : headLength);
}

/// The parts of a screen that lie in the requested rectangles. A part that one of them holds is done with it; a
/// part that is cut goes on to the next, and so may come several times.
void cutToRects(const std::vector<Rect>& visible, const std::vector<Rect>& rects, std::vector<Rect>& parts)
{
    parts.clear();
    for (const Rect& part : visible) {
        for (const Rect& rect : rects) {
            if (rect.contain(part)) {
                parts.push_back(part);
                break;
            }
            if (rect.Overlap(part))
                parts.push_back(rect.getIntersection(part));
        }
    }
}

/// Takes the connected call's block off while an incoming call lies over it. The line feed behind the block
/// stays.
void serialiseIconForIncomingScreen(std::string& content)
{
    // "icon0:CallStateActive" is the head of "icon0:CallStateActiveHD" too.
    if (content.find("icon0:Incoming") == std::string::npos
        || content.find("icon0:CallStateActive") == std::string::npos)
        return;
    constexpr std::string_view end = "end:";
    const std::size_t found = content.find(end);
    if (found != std::string::npos)
        content.erase(0, found + end.size());
}

bool isSystemWindowLineNotEmpty(std::string_view line)
{
    constexpr std::string_view blankLine = "                        "; // 24 of them
    return !line.empty() && line != blankLine;
}

void convertUpAndDownArrowsToUTFFormat(std::string& line)
{
    constexpr std::string_view arrowOfToolkit = "\xEE\x80\x80"; // U+E000
    constexpr std::string_view upDownArrow = "\xE2\x86\x95";    // U+2195
    const std::size_t found = line.find(arrowOfToolkit);
    if (found != std::string::npos)
        line.replace(found, arrowOfToolkit.size(), upDownArrow);
}

}

std::vector<std::vector<Rect>> DisplayPrivate::findVisibleRects()
{
    std::vector<Rect> above;
    above.reserve(mStack.size());
    mStack.forEach([&above](const StackScreen& screen) {
        const URect rect = screen.widget().getRect();
        above.emplace_back(rect.left(), rect.top(), rect.width(), rect.height());
    });
    std::vector<std::vector<Rect>> visible(above.size());
    for (std::vector<Rect>& parts : visible) {
        const Rect own = above.front();
        above.erase(above.begin());
        parts = above.empty() ? std::vector{own} : own.subtract(above);
    }
    return visible;
}

std::string DisplayPrivate::serialise()
{
    std::string text;
    mStack.forEach([&text](const StackScreen& screen) { text += screen->serialise(); });
    appendVolumeIndicator(text);
    return text;
}

std::string DisplayPrivate::serialiseByRect(const std::vector<Rect>& rects, std::string statusStr)
{
    const bool isQvt = isSoftwareQvt();
    mStatusKey = isQvt ? statusKeyOf(statusStr) : std::string();
    std::string statusPart;
    std::string content;
    if (hasSubscriber()) {
        statusPart = serialiseStatusMessage();
        content = serialiseScreens(rects);
    }
    serialiseIconForIncomingScreen(content);
    std::string text = serialiseSystemWindow(content, statusPart);
    appendVolumeIndicator(content);
    appendFPKBar(content);
    mStatusKey.clear();
    if (!isQvt)
        text += statusPart;
    if (text.empty())
        return content;
    text += content;
    return text;
}

bool DisplayPrivate::hasSubscriber()
{
    CriticalSection section(mListenerLock);
    return static_cast<bool>(mDisplayChangeListener);
}

std::string DisplayPrivate::serialiseScreens(const std::vector<Rect>& rects)
{
    constexpr std::size_t usualLength = 1024;
    const std::vector<std::vector<Rect>> visible = findVisibleRects();
    std::vector<Rect> parts;
    std::string text;
    text.reserve(usualLength);
    auto own = visible.begin();
    mStack.forEach([&](const StackScreen& screen) {
        if (own == visible.end())
            return; // put on by another one's text
        cutToRects(*own++, rects, parts);
        text += screen->serialise(parts);
    });
    return text;
}

std::string DisplayPrivate::serialiseStatusMessage() const
{
    if (!mStatusMessage || !mStatusMessage->isVisible())
        return {};
    return mStatusMessage->serialise().toUTF8();
}

void DisplayPrivate::appendVolumeIndicator(std::string& text) const
{
    if (mVolumeIndicator && mVolumeIndicator->isVisible())
        text += mVolumeIndicator->serialise().toUTF8();
}

void DisplayPrivate::appendFPKBar(std::string& text) const
{
    if (!HardwareVersion::is_RX40_any() && !HardwareVersion::is_RX70())
        return;
    if (const FPKBarMEG* bar = mContent->getFPKBar())
        text += bar->serialise().toUTF8();
}

std::string DisplayPrivate::serialiseSystemWindow(const std::string& content, const std::string& statusPart)
{
    const std::string caption
        = isSoftwareQvt() && !statusPart.empty() ? statusPart : mContent->getSystemWindowText(0, mStatusKey);
    if (!isSystemWindowLineNotEmpty(caption))
        return {};
    ScreenTextWriter writer;
    writer.object("PopupTextField");
    writer.field("caption", caption);
    const std::string line = secondLineText(content);
    if (!line.empty()) {
        writer.subitem("VantoListBoxItem");
        writer.field("string0", line);
        writer.endSubitem();
    }
    writer.endObject();
    return writer.take();
}

std::string DisplayPrivate::secondLineText(const std::string& content)
{
    std::string line = mContent->getSystemWindowText(1, mStatusKey);
    if (mIsSystemWindowCollapsed) {
        constexpr std::string_view key = "string0:";
        const std::size_t row = content.find(key);
        if (row != std::string::npos && content.find("object:\nname:ContextMenu20Line2\n") != std::string::npos) {
            const std::size_t start = row + key.size();
            line = content.substr(start, content.find('\n', start) - start);
        }
    } else if (mContent->getSWCurrentNumLines() >= 2) {
        convertUpAndDownArrowsToUTFFormat(line);
    } else {
        return {};
    }
    return isSystemWindowLineNotEmpty(line) ? line : std::string();
}

}
