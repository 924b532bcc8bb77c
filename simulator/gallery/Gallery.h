#pragma once

#include <UAgent.h>
#include <UString.h>
#include <UWidget.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class UScreenWE1;
class VantoListBoxMEG;

namespace Gallery {

/// The glass on which a widget is shown, with nothing else on it.
class Stage {
public:
    explicit Stage(int displayLines);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Makes a widget and puts it on the glass, over those that are there. The stage owns it.
    template <typename Widget, typename... Arguments>
    Widget* add(Arguments&&... arguments)
    {
        auto* widget = new Widget(std::forward<Arguments>(arguments)...);
        root().addWidget(widget);
        return widget;
    }

    /// Puts a screen of two lines on the glass, for something to come up over.
    void addScreen(const std::string& first, const std::string& second);

    UWidget& root() { return *mRoot; }

    /// An agent that prints the number of every event it hears, for a widget's listener.
    UAgent* listener() { return mListener.get(); }

    /// The telephone's kind, 0 to 2; 1 has a system window.
    void setSoftwareType(int type);

    /// Keeps an object that no widget owns until the exhibit has been shown.
    void keep(std::shared_ptr<void> object) { mKept.push_back(std::move(object)); }

    const UScreenWE1& screen() const;

private:
    std::unique_ptr<UAgent> mListener;
    std::unique_ptr<UWidget> mRoot;
    std::vector<std::shared_ptr<void>> mKept;
};

/// A text of the widgets from UTF-8.
inline UString text(const std::string& utf8)
{
    return UString(utf8);
}

/// Adds a plain row for each text.
void addRows(VantoListBoxMEG& list, const std::vector<std::string>& texts);

/// A widget of the gallery: how to build it, and the script that shows it. An exhibit is a global object in a
/// file of its own; making it is all that is needed.
///
/// The script has the steps press, type, hold, release, advance, show, say and shot. A picture is called after
/// the exhibit and the name behind `shot`.
class Exhibit {
public:
    Exhibit(std::string name, std::string script, std::function<void(Stage& stage)> build, int displayLines = 2);

    const std::string& name() const { return mName; }
    const std::string& script() const { return mScript; }
    int displayLines() const { return mDisplayLines; }
    void build(Stage& stage) const { mBuild(stage); }

    /// All exhibits, in the order of their names.
    static std::vector<const Exhibit*> all();

private:
    std::string mName;
    std::string mScript;
    std::function<void(Stage& stage)> mBuild;
    int mDisplayLines;
};

}
