#pragma once

#include <DisplayAPI/Export.h>

#include <Rect.h>
#include <UEvent.h>

#include <cstddef>
#include <string>
#include <vector>

class Semaphore;

namespace DisplayAPI {

class Display;
class Displayable;

/// A call of the display on its way to the GUI thread; its caller always waits.
///
/// Texts are copied; rectangles and results stay in the caller's frame. An event that dies without having run
/// lets its waiter go.
class DISPLAYAPI_EXPORT DisplayRequestEvent : public UEvent {
public:
    /// The requests by number. Only Display itself may post Serialise and SerialiseByRect: their caller must give
    /// back the lock of the text.
    enum DisplayRequests : int {
        Hide = 0,
        Show = 1,
        SetCurrent = 2,
        GetCurrent = 3,
        Shutdown = 4,
        LocaleChanged = 5,
        DateFormatChanged = 6,
        TimeFormatChanged = 7,
        Serialise = 8,
        CreateServerDisplay = 9,
        SetMaximised = 10,
        GetDisplayedRects = 11,
        SerialiseByRect = 12,
        Unassigned = 13,
        SetSystemWindowSize = 14,
        SetSystemWindowText = 15,
        SetSystemWindowTop = 16,
        ShowTimeInSystemWindow = 17,
        SetTimeInSystemWindow = 18,
        SetTimer = 19,
        StopTimer = 20,
        SetSoftwareType = 21,
        SetStatusMessage = 22,
        Copy = 23,
        Paste = 24,
        StartTimer = 25,
        ShowTimer = 26,
        HideTimer = 27,
        PauseTimer = 28,
        SetPreviewVolume = 29,
        SetFPKLabel = 30,
        SetFPKStatus = 31,
        ShiftFPKLabel = 32,
        ShiftFPKBar = 33,
        SetAlternateLabel = 34,
        SetStatusMessageAvailable = 35,
        ShiftChangeEventForCertainFPKey = 36,
        CallShowFPKBarMethodFromAdminPhonelet = 37,
        SetRingerVolumeBarLimit = 38,
    };

    DisplayRequestEvent(Display* requester, DisplayRequests request);
    DisplayRequestEvent(Display* requester, DisplayRequests request, Displayable* displayable);
    DisplayRequestEvent(Display* requester, DisplayRequests request, bool value);
    DisplayRequestEvent(Display* requester, DisplayRequests request, int value);
    DisplayRequestEvent(
        Display* requester, DisplayRequests request, unsigned int first, unsigned int second, unsigned int third);
    DisplayRequestEvent(Display* requester, DisplayRequests request, unsigned int first, unsigned int second,
        unsigned int third, unsigned int fourth, unsigned int fifth);
    DisplayRequestEvent(Display* requester, DisplayRequests request, bool value, int number);

    /// A literal would pick the form with a bool: hand over std::string objects.
    DisplayRequestEvent(Display* requester, DisplayRequests request, const std::string& text);
    DisplayRequestEvent(
        Display* requester, DisplayRequests request, const std::vector<Rect>& rects, const std::string& text);
    DisplayRequestEvent(Display* requester, DisplayRequests request, int value, const std::string& text);
    ~DisplayRequestEvent() override;
    DisplayRequestEvent(const DisplayRequestEvent&) = delete;

    void process() override;

    /// Gives the semaphore on which the caller waits, if there is one.
    void requestCompleted();

    Display* requesterDisplay() const { return mRequester; }
    DisplayRequests getType() const { return mRequest; }
    Displayable* getDisplayable() const { return mDisplayable; }
    const std::string& getStringParam() const { return mString; }
    bool getBoolParam() const { return mBool; }
    int getIntParam() const { return mInts[0]; }
    int getIntParam2() const { return mInts[1]; }
    int getIntParam3() const { return mInts[2]; }
    int getIntParam4() const { return mInts[3]; }
    int getIntParam5() const { return mInts[4]; }
    const std::vector<Rect>* getSerialisableRects() const { return mSerialisableRects; }

    // Results, in the caller's frame

    void setSemaphore(Semaphore* semaphore) { mSemaphore = semaphore; }
    void setCurrentDisplayable(Displayable** result) { mCurrentDisplayable = result; }
    Displayable** getCurrentDisplayable() const { return mCurrentDisplayable; }
    void setDisplayedRectsReturnValue(std::vector<Rect>** result) { mDisplayedRects = result; }

    /// A vector of the caller's own that the rectangles are copied into; the result then points at it.
    void setDisplayedRectsCopy(std::vector<Rect>* copy) { mRectsCopy = copy; }

    /// Writes the rectangles through the result, if there is one.
    void setDisplayedRects(std::vector<Rect>* rects);
    void setStringReturnValue(std::string* result) { mStringResult = result; }
    std::string* getStringReturnValue() const { return mStringResult; }

    static void* operator new(std::size_t size);
    static void operator delete(void* block, std::size_t size);

private:
    Display* mRequester;
    Displayable* mDisplayable = nullptr;
    std::string mString;
    bool mBool = false;
    bool mIsAnswered = false;
    DisplayRequests mRequest;
    Semaphore* mSemaphore = nullptr;
    Displayable** mCurrentDisplayable = nullptr;
    std::vector<Rect>** mDisplayedRects = nullptr;
    std::vector<Rect>* mRectsCopy = nullptr;
    std::string* mStringResult = nullptr;
    const std::vector<Rect>* mSerialisableRects = nullptr;
    int mInts[5] = {};
};

}
