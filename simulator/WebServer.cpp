#include "WebServer.h"

#include "Phone.h"
#include "Picture.h"
#include "SignalWatch.h"
#include "UsageError.h"
#include "WebPage.h"

#include <libwebsockets.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>

namespace Simulator {

namespace {

constexpr std::size_t MostPages = 100;
constexpr std::chrono::milliseconds GoodbyeLimit{1000};
constexpr int PictureScale = 4;
constexpr int MostPictureScale = 16;

/// A header of a request, whole; empty if it has none.
std::string header(lws* connection, lws_token_indexes token)
{
    const int length = std::max(lws_hdr_total_length(connection, token), 0);
    std::string value(static_cast<std::size_t>(length) + 1, '\0');
    lws_hdr_copy(connection, value.data(), length + 1, token);
    value.pop_back();
    return value;
}

/// A frame of a web socket, or the body of an answer, with the room before it that the library asks for.
int send(lws* connection, const std::string& bytes, lws_write_protocol kind)
{
    std::vector<unsigned char> buffer(LWS_PRE + bytes.size());
    std::memcpy(buffer.data() + LWS_PRE, bytes.data(), bytes.size());
    return lws_write(connection, buffer.data() + LWS_PRE, bytes.size(), kind);
}

int pictureScale(lws* connection)
{
    std::array<char, 16> value{};
    const char* scale = lws_get_urlarg_by_name(connection, "scale=", value.data(), value.size());
    return scale ? std::clamp(std::atoi(scale), 1, MostPictureScale) : PictureScale;
}

/// Sends the head of an answer. False when that fails.
bool sendHead(lws* connection, const std::string& type, std::size_t size)
{
    const std::string sockets = "ws://" + header(connection, WSI_TOKEN_HOST);
    const std::pair<const char*, std::string> more[] = {
        // What comes from elsewhere has no place in the page, and the page none in a frame elsewhere.
        {"content-security-policy:",
            "default-src 'self'; connect-src 'self' " + sockets
                + "; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
        {"cross-origin-resource-policy:", "same-origin"},
        {"x-content-type-options:", "nosniff"},
        {"referrer-policy:", "no-referrer"},
        {"cache-control:", "no-store"},
    };
    std::array<unsigned char, LWS_PRE + 2048> buffer;
    unsigned char* begin = buffer.data() + LWS_PRE;
    unsigned char* place = begin;
    unsigned char* end = buffer.data() + buffer.size() - 1;
    if (lws_add_http_common_headers(connection, HTTP_STATUS_OK, type.c_str(), size, &place, end))
        return false;
    for (const auto& [name, value] : more) {
        if (lws_add_http_header_by_name(connection, reinterpret_cast<const unsigned char*>(name),
                reinterpret_cast<const unsigned char*>(value.data()), static_cast<int>(value.size()), &place, end))
            return false;
    }
    return lws_finalize_write_http_header(connection, begin, &place, end) == 0;
}

/// Answers with a status alone, and closes.
int refuse(lws* connection, unsigned status)
{
    lws_return_http_status(connection, status, nullptr);
    return -1;
}

}

/// The library calls functions; these find the server behind them.
struct WebServer::Protocols {
    static WebServer* serverOf(lws* connection)
    {
        return static_cast<WebServer*>(lws_context_user(lws_get_context(connection)));
    }
    static int http(lws* connection, lws_callback_reasons reason, void* session, void* data, std::size_t size)
    {
        return serverOf(connection)->onHttp(connection, reason, session, data, size);
    }
    static int socket(lws* connection, lws_callback_reasons reason, void*, void* data, std::size_t size)
    {
        return serverOf(connection)->onSocket(connection, reason, static_cast<const char*>(data), size);
    }
    /// What wakes the library only; a page that names it is refused.
    static int waker(lws*, lws_callback_reasons reason, void*, void*, std::size_t)
    {
        return reason == LWS_CALLBACK_FILTER_PROTOCOL_CONNECTION ? -1 : 0;
    }

    static const std::array<lws_protocols, 4>& all()
    {
        constexpr std::size_t received = 65'536; // at once
        static const std::array<lws_protocols, 4> protocols{{
            {"http", http, 0, 0, 0, nullptr, 0},
            {"telephone", socket, 0, received, 0, nullptr, 0},
            {"signals", waker, 0, 0, 0, nullptr, 0},
            {nullptr, nullptr, 0, 0, 0, nullptr, 0},
        }};
        return protocols;
    }
};

WebServer::WebServer(Phone& phone, SignalWatch& signals, Settings settings)
    : mPhone(phone)
    , mSignals(signals)
    , mControl(std::move(settings.control))
{
    if (settings.canSwitch) {
        mControl.onVariant = [this](const Variant& variant) {
            const std::lock_guard lock(mMutex);
            if (!mWantedVariant)
                mWantedVariant = variant;
        };
    }
    mPort = listen(settings.port);
    for (ScreenWatch* watch : {&mPhone.watch(), &mPhone.desktop()})
        watch->setObserver([this] { lws_cancel_service(mContext); });
}

WebServer::~WebServer()
{
    for (ScreenWatch* watch : {&mPhone.watch(), &mPhone.desktop()})
        watch->setObserver({});
    // Before the library, which they wake.
    mClients.clear();
    mLeaving.clear();
    lws_context_destroy(mContext);
}

int WebServer::listen(int port)
{
    lws_set_log_level(0, nullptr);
    lws_context_creation_info info{};
    info.port = port;
    info.iface = "127.0.0.1";
    info.protocols = Protocols::all().data();
    info.user = this;
    info.options = LWS_SERVER_OPTION_EXPLICIT_VHOSTS | LWS_SERVER_OPTION_FAIL_UPON_UNABLE_TO_BIND;
    mContext = lws_create_context(&info);
    lws_vhost* host = mContext ? lws_create_vhost(mContext, &info) : nullptr;
    if (!host) {
        if (mContext)
            lws_context_destroy(mContext);
        throw UsageError("port " + std::to_string(port) + " is taken or can't be used");
    }
    watchSignals(host);
    return lws_get_vhost_listen_port(host);
}

/// Lets a signal wake the library, which closes what it watches: so it is given a descriptor of its own.
void WebServer::watchSignals(lws_vhost* host) const
{
    lws_sock_file_fd_type descriptor{};
    descriptor.filefd = fcntl(mSignals.descriptor(), F_DUPFD_CLOEXEC, 0);
    lws_adopt_descriptor_vhost(host, LWS_ADOPT_RAW_FILE_DESC, descriptor, "signals", nullptr);
}

std::string WebServer::address() const
{
    return "http://127.0.0.1:" + std::to_string(mPort) + "/";
}

std::optional<Variant> WebServer::wantedVariant() const
{
    const std::lock_guard lock(mMutex);
    return mWantedVariant;
}

// The run

int WebServer::run()
{
    int signal = 0;
    while (signal == 0 && !mustEnd()) {
        lws_service(mContext, 0); // sleeps until something comes
        turn();
        signal = mSignals.take();
    }
    sayGoodbye();
    return signal;
}

bool WebServer::mustEnd() const
{
    const auto hasQuit = [](const auto& client) { return client->hasQuit(); };
    return mPhone.watch().hasEnded() || wantedVariant()
        || std::ranges::any_of(mClients, hasQuit, &Clients::value_type::second)
        || std::ranges::any_of(mLeaving, hasQuit);
}

WebClient::Moment WebServer::moment()
{
    return {mPhone.watch().snapshot().number, mPhone.deliveries().count(), mPhone.desktop().snapshot().number};
}

/// Lets the commands proceed, and asks for the turn of those pages that there is something to tell.
void WebServer::turn()
{
    const WebClient::Moment now = moment();
    for (const auto& [connection, client] : mClients) {
        client->proceed();
        if (client->isTooFarBehind())
            lws_set_timeout(connection, PENDING_TIMEOUT_KILLED_BY_PARENT, LWS_TO_KILL_ASYNC);
        else if (mSaysGoodbye || client->hasMessage(now))
            lws_callback_on_writable(connection);
    }
    for (const auto& client : mLeaving)
        client->proceed();
    std::erase_if(mLeaving, [](const auto& client) { return !client->isBusy(); });
}

/// Each page gets the answers that it still waits for, and the reason. Nobody waits long for one that does not read.
void WebServer::sayGoodbye()
{
    mSaysGoodbye = true;
    for (const auto& entry : mClients)
        entry.second->leave();
    const auto deadline = Clock::now() + GoodbyeLimit;
    lws_sorted_usec_list_t timer{};
    const auto tick = [](lws_sorted_usec_list_t*) {};
    lws_sul_schedule(mContext, 0, &timer, tick, std::chrono::microseconds(GoodbyeLimit).count());
    turn();
    while ((!mClients.empty() || !mLeaving.empty()) && Clock::now() < deadline) {
        lws_service(mContext, 0);
        turn();
    }
    lws_sul_cancel(&timer);
    const auto hasEnded = [this](const auto& client) { return client->waitUntilDone(mPhone.patience()); };
    mIsStuck = !std::ranges::all_of(mClients, hasEnded, &Clients::value_type::second)
        || !std::ranges::all_of(mLeaving, hasEnded);
}

// Who may come

/// A page of another site that the user has open must not work his telephone, whatever name leads here.
bool WebServer::isOwn(lws* connection) const
{
    const std::string host = header(connection, WSI_TOKEN_HOST);
    const std::string port = ":" + std::to_string(mPort);
    if (host != "127.0.0.1" + port && host != "localhost" + port)
        return false;
    const std::string origin = header(connection, WSI_TOKEN_ORIGIN);
    return origin.empty() || origin == "http://" + host;
}

// Pages and pictures

int WebServer::onHttp(lws* connection, int reason, void* session, void* data, std::size_t size)
{
    switch (reason) {
    case LWS_CALLBACK_HTTP: return answerHttp(connection, static_cast<const char*>(data));
    case LWS_CALLBACK_FILTER_PROTOCOL_CONNECTION: return -1; // a web socket must name the protocol
    default: return lws_callback_http_dummy(connection, static_cast<lws_callback_reasons>(reason), session, data, size);
    }
}

int WebServer::answerHttp(lws* connection, const std::string& path)
{
    if (!isOwn(connection))
        return refuse(connection, HTTP_STATUS_FORBIDDEN);
    if (lws_hdr_total_length(connection, WSI_TOKEN_GET_URI) == 0)
        return refuse(connection, HTTP_STATUS_METHOD_NOT_ALLOWED);
    std::string type;
    std::string body;
    if (const WebPart* part = webPart(path)) {
        type = part->type;
        body = part->body;
    } else if (path == "/picture.png") {
        type = "image/png";
        body = encodePicture(drawPicture(mPhone.watch().snapshot().screen, pictureScale(connection)));
    } else {
        return refuse(connection, HTTP_STATUS_NOT_FOUND);
    }
    if (!sendHead(connection, type, body.size()) || send(connection, body, LWS_WRITE_HTTP_FINAL) < 0)
        return -1;
    return lws_http_transaction_completed(connection);
}

// The web socket

int WebServer::onSocket(lws* connection, int reason, const char* data, std::size_t size)
{
    const auto place = mClients.find(connection);
    WebClient* client = place == mClients.end() ? nullptr : place->second.get();
    switch (reason) {
    case LWS_CALLBACK_FILTER_PROTOCOL_CONNECTION:
        return isOwn(connection) && mClients.size() < MostPages && !mSaysGoodbye ? 0 : -1;
    case LWS_CALLBACK_ESTABLISHED: open(connection); break;
    case LWS_CALLBACK_CLOSED: close(connection); break;
    case LWS_CALLBACK_RECEIVE:
        if (client && !mSaysGoodbye)
            client->receive(
                data, size, lws_is_final_fragment(connection) && lws_remaining_packet_payload(connection) == 0);
        break;
    case LWS_CALLBACK_SERVER_WRITEABLE: return client ? write(connection) : 0;
    default: break;
    }
    return 0;
}

void WebServer::open(lws* connection)
{
    mClients[connection]
        = std::make_unique<WebClient>(mPhone, mControl, [context = mContext] { lws_cancel_service(context); });
    lws_callback_on_writable(connection);
}

/// A key that the page has held down is let go, unless it is held in another page.
void WebServer::close(lws* connection)
{
    auto gone = mClients.extract(connection);
    if (gone.empty())
        return;
    std::unique_ptr<WebClient> client = std::move(gone.mapped());
    client->leave();
    for (const int key : client->heldKeys()) {
        const auto holdsToo = [key](const auto& other) { return other->heldKeys().contains(key); };
        if (std::ranges::none_of(mClients, holdsToo, &Clients::value_type::second))
            client->release(key);
    }
    mLeaving.push_back(std::move(client));
}

int WebServer::write(lws* connection)
{
    WebClient& client = *mClients.at(connection);
    const std::string message = client.nextMessage(moment());
    if (!message.empty()) {
        lws_callback_on_writable(connection);
        return send(connection, message, LWS_WRITE_TEXT) < 0 ? -1 : 0;
    }
    if (!mSaysGoodbye || client.isBusy())
        return 0;
    std::string reason = wantedVariant() ? "variant" : "ended";
    lws_close_reason(
        connection, LWS_CLOSE_STATUS_GOINGAWAY, reinterpret_cast<unsigned char*>(reason.data()), reason.size());
    return -1;
}

}
