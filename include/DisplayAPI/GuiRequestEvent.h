#pragma once

#include <DisplayAPI/Export.h>

#include <UEvent.h>

#include <cstddef>
#include <string>
#include <typeinfo>

class Wait;

namespace DisplayAPI {

class Widget;
class WidgetImpl;

/// A call of a handle on its way to the GUI thread.
///
/// Which slot an argument travels in is part of each class's contract: texts, integers, bools and pointers fill
/// the slots of their kind in the order of the arguments. Texts are copied; pointers are not, and what they name
/// must live until the request has run. The result slots point into the frame of a caller who waits.
///
/// An event that dies without having run lets its waiter go: the caller then returns its default.
class DISPLAYAPI_EXPORT GuiRequestEvent : public UEvent {
public:
    GuiRequestEvent(Widget* requester, int requestType);
    GuiRequestEvent(Widget* requester, Wait* wait, int requestType);
    ~GuiRequestEvent() override;
    GuiRequestEvent(const GuiRequestEvent&) = delete;

    /// Runs the request, unless its handle has been retired.
    void process() override;

    Widget* requesterWidget() const { return mRequester; }
    int getType() const { return mRequestType; }

    /// The class's own enumeration of requests, where it is known; for the log.
    void setNumbers(const std::type_info& numbers) { mNumbers = &numbers; }
    const std::type_info* numbers() const { return mNumbers; }
    void setWaitCondition(Wait* wait) { mWait = wait; }
    Wait* waitCondition() const { return mWait; }

    /// Waits on the wait condition, if there is one. False if the request will never run.
    bool waitForCompletion();

    /// Lets the waiter go, if there is one.
    void signalComplete();

    /// Makes the event the owner of a copy that was made for it, until the request runs: then the handler takes
    /// the copy over. Returns the copy.
    template <typename T>
    T* ownUntilRun(T* copy)
    {
        mOwned = new Owned{copy, [](void* object) { delete static_cast<T*>(object); }, mOwned};
        return copy;
    }

    /// The same for an object that the request hands over, and that others may still know: if the request never
    /// runs, `abandon(object)` is called.
    void ownUntilRun(void* object, void (*abandon)(void*)) { mOwned = new Owned{object, abandon, mOwned}; }

    std::string stringParam1;
    std::string stringParam2;
    std::string stringParam3;
    int intParam1 = -1;
    int intParam2 = -1;
    int intParam3 = -1;
    bool boolParam1 = false;
    bool boolParam2 = false;
    bool boolParam3 = false;
    bool boolParam4 = false;
    bool boolParam5 = false;
    bool boolParam6 = false;
    void* ptrParam1 = nullptr;
    void* ptrParam2 = nullptr;
    void* ptrParam3 = nullptr;
    void** ptrResult = nullptr;
    int* intResult = nullptr;
    std::string* stringResult = nullptr;
    bool* boolResult = nullptr;

    static void* operator new(std::size_t size);
    static void operator delete(void* block, std::size_t size);

private:
    friend class Widget;

    struct Owned {
        void* object;
        void (*destroy)(void*);
        Owned* next;
    };

    void freeOwned(bool withObjects);

    Widget* mRequester;
    WidgetImpl* mImpl; // counted; null without a requester
    Wait* mWait;
    Owned* mOwned = nullptr;
    const std::type_info* mNumbers = nullptr;
    int mRequestType;
    bool mIsAnswered = false;
};

}
