#pragma once

#include "Variant.h"
#include "WebClient.h"

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

struct lws;
struct lws_context;
struct lws_vhost;

namespace Simulator {

class Phone;
class SignalWatch;

/// The telephone as a page of a browser: the page, its parts and a picture of the screen by HTTP, and the control
/// channel by a web socket, a command in each message. Besides the answers the page gets {"event":"changed"} whenever
/// the screen or the desktop has changed or a command was delivered; what has changed it asks for.
///
/// It listens on the loopback address alone, and answers nobody who comes from another page: what the browser names as
/// host and origin must be the server itself. A page that has gone holds no key down, and one that does not read its
/// answers is left.
///
/// Threads: everything happens on the one thread that calls run(), but for the commands, which are carried out on a
/// thread for each page.
class WebServer {
public:
    struct Settings {
        int port = 0; ///< 0 for any that is free.
        ControlCommands::Settings control;
        bool canSwitch = false; ///< Whether pages may ask for another variant.
    };

    /// Listens from now on. Throws UsageError for a port that is taken or can't be used.
    WebServer(Phone& phone, SignalWatch& signals, Settings settings);
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    /// Where the page is.
    std::string address() const;
    int port() const { return mPort; }

    /// Serves until a signal, the command `quit`, the wish for another variant, or the end of the phonelet; the pages
    /// are told that the telephone goes. Answers the signal, or 0.
    int run();

    /// Behind run(): the variant that a page has asked for.
    std::optional<Variant> wantedVariant() const;

    /// Behind run(): true when a command has not ended. This object can't be destroyed then.
    bool isStuck() const { return mIsStuck; }

private:
    using Clock = std::chrono::steady_clock;
    using Clients = std::map<lws*, std::unique_ptr<WebClient>>;
    struct Protocols;

    int listen(int port);
    void watchSignals(lws_vhost* host) const;
    int onHttp(lws* connection, int reason, void* session, void* data, std::size_t size);
    int onSocket(lws* connection, int reason, const char* data, std::size_t size);
    int answerHttp(lws* connection, const std::string& path);
    void open(lws* connection);
    void close(lws* connection);
    int write(lws* connection);
    bool isOwn(lws* connection) const;
    bool mustEnd() const;
    WebClient::Moment moment();
    void turn();
    void sayGoodbye();

    Phone& mPhone;
    SignalWatch& mSignals;
    ControlCommands::Settings mControl;
    lws_context* mContext = nullptr;
    int mPort = 0;
    Clients mClients;
    std::vector<std::unique_ptr<WebClient>> mLeaving; // whose pages have gone, until their last command has ended
    bool mSaysGoodbye = false;
    bool mIsStuck = false;
    mutable std::mutex mMutex; // of what follows; threads: any
    std::optional<Variant> mWantedVariant;
};

}
