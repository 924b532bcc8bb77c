#pragma once

#include "CallService.h"

#include <DisplayAPI/Timer.h>
#include <DisplayAPI/TimerEvent.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// A simulated exchange, whose parties act by themselves on the telephone's clock: they ring, answer, are busy, hold,
/// and hang up, so that one person alone can use the telephone.
///
/// Threads: any. It is made and destroyed on the GUI thread.
class Exchange final : public CallService {
public:
    /// What a party does when it is called, or when its own call is taken.
    enum class Manner {
        Answers, ///< After two rings; hangs up after ten minutes.
        Hurries, ///< Answers at once, and hangs up after 20 seconds.
        Holds,   ///< Answers, and puts the user on hold for a while again and again.
        IsBusy,
        NeverAnswers,
    };
    struct Party {
        std::string name;
        std::string number;
        Manner manner;
    };

    Exchange();
    ~Exchange() override;

    /// Whom the exchange knows. Any other number is unobtainable.
    static const std::vector<Party>& parties();

    void setListener(Listener* listener) override;

    /// Lets somebody call: "NAME NUMBER", a number alone, or the next of the parties for an empty text.
    void ring(const std::string& caller);

    int dial(const std::string& number) override;
    void answer(int call) override;
    void hangUp(int call) override;
    void hold(int call) override;
    void resume(int call) override;

private:
    class Line;

    const Party& nextCaller();
    int start(Call call, Manner manner);
    void change(int call, State from, State to);
    void act(Line& line);
    void tell(const Call& call);
    std::shared_ptr<Line> lineOf(int call) const;
    std::vector<std::shared_ptr<Line>> takeEnded();

    mutable std::mutex mMutex; // of what stands below
    Listener* mListener = nullptr;
    std::map<int, std::shared_ptr<Line>> mLines;
    int mLastId = 0;
    std::size_t mNextCaller = 0;
};
