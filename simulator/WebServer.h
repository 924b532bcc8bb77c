#pragma once

#include "ControlCommands.h"
#include "ControlWorker.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <set>
#include <string>
#include <utility>

struct lws;
struct lws_context;

namespace Simulator {

class Phone;
class SignalWatch;

/// The telephone as a page of a browser: the page, its parts and a picture of the screen by HTTP, and the control
/// channel by a web socket, a command in each message. Besides the answers the page gets {"event":"changed"} whenever
/// the screen has changed or a command was delivered; what has changed it asks for.
///
/// It listens on the loopback address alone, and answers nobody who comes from another page: what the browser names as
/// host and origin must be the server itself.
///
/// Threads: everything happens on the one thread that calls run(), but for the commands, which a worker carries out.
class WebServer {
public:
    struct Settings {
        int port = 0; ///< 0 for any that is free.
        ControlCommands::Settings control;
    };

    /// Listens from now on. Throws UsageError for a port that is taken or can't be used.
    WebServer(Phone& phone, SignalWatch& signals, Settings settings);
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    /// Where the page is.
    std::string address() const;

    /// Serves until a signal, the command `quit`, or the end of the phonelet. Answers the signal, or 0.
    int run();

private:
    /// A page that is open.
    struct Page {
        std::string incoming;            // a message of which parts have come
        std::deque<std::string> answers; // to be sent
        std::uint64_t toldScreen = 0;    // the numbers of screen and delivery of which it knows
        std::uint64_t toldDelivery = 0;
    };
    struct Protocols;

    int listen(int port);
    int onHttp(lws* connection, int reason, void* session, void* data, std::size_t size);
    int onSocket(lws* connection, int reason, void* session, void* data, std::size_t size);
    bool isOwn(lws* connection) const;
    int answerHttp(lws* connection, const std::string& path);
    void take(lws* connection, Page& page, const char* data, std::size_t size);
    void takeCommands();
    bool isBehind(const Page& page);
    std::string nextMessage(Page& page);
    void wakePages();

    Phone& mPhone;
    SignalWatch& mSignals;
    ControlCommands mCommands;
    std::unique_ptr<ControlWorker> mWorker; // while run() lasts
    lws_context* mContext = nullptr;
    int mPort = 0;
    std::set<lws*> mPages;
    std::deque<std::pair<lws*, std::string>> mWaiting; // commands, with the page that gave them
    lws* mAsker = nullptr;                             // the page whose command is in hand; null if it has gone
};

}
