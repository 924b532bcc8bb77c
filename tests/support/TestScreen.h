#pragma once

#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/DisplayablePrivate.h>

#include <UWidget.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A screen over a plain widget, which notes what the stack does with it. Threads: GUI thread only.
class TestScreen : public DisplayAPI::Displayable {
public:
    enum class Kind {
        Ordinary,
        Popup,
    };

    class Private : public DisplayAPI::DisplayablePrivate {
    public:
        Private(std::string name, Kind kind, std::vector<std::string>& log)
            : mName(std::move(name))
            , mKind(kind)
            , mLog(log)
            , mWidget(new UWidget)
            , text("object:\nname:" + mName + "\nend:\n")
        {
            mWidget->setCoordinates(0, 0, 161, 30);
        }
        ~Private() override
        {
            if (isOwner)
                delete mWidget.get();
        }

        UWidget* getWidget() override { return hasWidget ? mWidget.get() : nullptr; }
        void releaseOwnership() override { isOwner = false; }
        void gainOwnership() override { isOwner = true; }
        void show() override
        {
            mLog.push_back("show " + mName);
            if (onShow)
                onShow();
        }
        void lostFocus() override
        {
            mLog.push_back("lostFocus " + mName);
            if (onLostFocus)
                onLostFocus();
        }
        bool hideOldWidgetOnFocusGained() override { return mKind == Kind::Ordinary; }
        std::string serialise() override { return text; }
        std::string serialise(const std::vector<DisplayAPI::Rect>& rects) override
        {
            askedRects = rects;
            return serialise();
        }
        void dismiss() { widgetDismissed(this); }

    private:
        std::string mName;
        Kind mKind;
        std::vector<std::string>& mLog;
        UPointer<UWidget> mWidget; // a tree that owns it may delete it first

    public:
        std::string text;
        std::vector<DisplayAPI::Rect> askedRects;
        std::function<void()> onShow;
        std::function<void()> onLostFocus;
        bool isOwner = true;
        bool hasWidget = true;
    };

    /// The log is shared by the screens of a test.
    TestScreen(const std::string& name, std::vector<std::string>& log, Kind kind = Kind::Ordinary)
        : mPrivate(std::make_unique<Private>(name, kind, log))
    {
        mName = name;
    }
    ~TestScreen() override
    {
        if (isRetiring)
            retireScreen();
    }

    DisplayAPI::DisplayablePrivateIfc* getPrivateImpl() override { return mPrivate.get(); }
    Private& screen() { return *mPrivate; }
    UWidget& widget() { return *mPrivate->getWidget(); }
    void dropPrivate() { mPrivate.reset(); }

    /// False: it dies without telling the stack, as a class does that only has a base destructor.
    bool isRetiring = true;

private:
    std::unique_ptr<Private> mPrivate;
};
