#pragma once

#include "CallService.h"
#include "ExchangeLine.h"
#include "Parties.h"

#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// A simulated exchange, whose parties act by themselves on the telephone's clock: they ring, answer, are busy, hold,
/// divert, and hang up, so that one person alone can use the telephone.
///
/// Threads: any. It is made and destroyed on the GUI thread.
class Exchange final : public CallService {
public:
    static constexpr int Lines = 6;
    static constexpr std::size_t MostMembers = 3; // of a conference, beside the user

    Exchange();
    ~Exchange() override;

    // What happens elsewhere

    /// Lets somebody call: "NAME NUMBER", a number alone, or the next of the parties for an empty text. A number that
    /// the exchange knows calls in its party's own way.
    void ring(const std::string& caller);

    /// Somebody, as above, leaves a voice message.
    void leaveMessage(const std::string& caller);

    /// The other end of the newest call hangs up.
    void hangUpThere();

    // The user

    void setListener(Listener* listener) override;
    int dial(const std::string& number) override;
    void answer(int call) override;
    void hangUp(int call) override;
    void hold(int call) override;
    void resume(int call) override;
    void deflect(int call, const std::string& number) override;
    void transfer(int call, const std::string& number) override;
    void connect(int call, int other) override;
    bool join(const std::vector<int>& calls) override;

    /// The voice mail hangs up at a hash; nobody else minds.
    void sendDigit(int call, char digit) override;
    void callBack(int call) override;
    void forward(Diversion kind, const std::string& number) override;
    void setDoNotDisturb(bool on) override;

private:
    using Line = ExchangeLine;
    using News = std::function<void(Listener& listener)>;

    Call callFrom(const std::string& caller);
    Call callOfNext();
    Diversion diversionOf(std::string& target) const;
    void receive(Call call);
    void comeBack(const Party& party, Kind kind, int after);
    int start(Call call, Parties::Plan plan, const std::string& forwardedTo = "");
    void end(int call, Cause cause);
    void change(int call, std::initializer_list<State> from, State to, const Parties::Plan* plan = nullptr);
    void act(int call);
    void follow(Line& line, const Parties::Act& act);
    void startClocks(Line& line, bool isReminded);
    void tellForwarded(const Party& caller, Diversion why, const std::string& target);
    void tell(News news);
    int linesInUse() const;
    std::shared_ptr<Line> lineOf(int call) const;
    Call callOf(int call) const;
    std::vector<std::shared_ptr<Line>> takeEnded();

    mutable std::mutex mMutex; // of what stands below
    Listener* mListener = nullptr;
    std::deque<News> mNews;
    bool mIsTelling = false;
    std::map<int, std::shared_ptr<Line>> mLines;
    std::map<Diversion, std::string> mForwarding;
    bool mIsDoNotDisturb = false;
    int mLastId = 0;
    std::size_t mNextCaller = 0;
};
