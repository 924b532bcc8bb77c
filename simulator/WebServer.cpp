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
#include <vector>

namespace Simulator {

namespace {

constexpr std::size_t LongestMessage = 65'536;
constexpr std::size_t MostWaiting = 1'000; // commands of all pages
constexpr int TurnLimit = 200;             // milliseconds, after which a signal is seen

std::string header(lws* connection, lws_token_indexes token)
{
    std::array<char, 256> value{};
    const int length = lws_hdr_copy(connection, value.data(), static_cast<int>(value.size()), token);
    return length > 0 ? std::string(value.data(), static_cast<std::size_t>(length)) : std::string();
}

/// A frame of a web socket, or the body of an answer, with the room before it that the library asks for.
int send(lws* connection, const std::string& bytes, lws_write_protocol kind)
{
    std::vector<unsigned char> buffer(LWS_PRE + bytes.size());
    std::memcpy(buffer.data() + LWS_PRE, bytes.data(), bytes.size());
    return lws_write(connection, buffer.data() + LWS_PRE, bytes.size(), kind);
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
    static int socket(lws* connection, lws_callback_reasons reason, void* session, void* data, std::size_t size)
    {
        return serverOf(connection)->onSocket(connection, reason, session, data, size);
    }

    static const std::array<lws_protocols, 3>& all()
    {
        static const std::array<lws_protocols, 3> protocols{{
            {"http", http, 0, 0, 0, nullptr, 0},
            {"telephone", socket, sizeof(Page*), LongestMessage, 0, nullptr, 0},
            {nullptr, nullptr, 0, 0, 0, nullptr, 0},
        }};
        return protocols;
    }
};

WebServer::WebServer(Phone& phone, SignalWatch& signals, Settings settings)
    : mPhone(phone)
    , mSignals(signals)
    , mCommands(phone, std::move(settings.control))
{
    mPort = listen(settings.port);
    mPhone.watch().setObserver([this] { lws_cancel_service(mContext); });
}

WebServer::~WebServer()
{
    mPhone.watch().setObserver({});
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
    return lws_get_vhost_listen_port(host);
}

std::string WebServer::address() const
{
    return "http://127.0.0.1:" + std::to_string(mPort) + "/";
}

int WebServer::run()
{
    mWorker = std::make_unique<ControlWorker>(mCommands);
    int signal = 0;
    // The library sleeps until something comes; a timer of its own lets it look for signals.
    lws_sorted_usec_list_t timer{};
    const auto tick = [](lws_sorted_usec_list_t*) {};
    while (signal == 0 && !mCommands.hasQuit() && !mPhone.watch().hasEnded()) {
        lws_sul_schedule(mContext, 0, &timer, tick, TurnLimit * LWS_US_PER_MS);
        lws_service(mContext, 0);
        takeCommands();
        wakePages();
        signal = mSignals.take();
    }
    lws_sul_cancel(&timer);
    mCommands.cancel();
    mWorker.reset();
    return signal;
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
    if (reason == LWS_CALLBACK_HTTP)
        return answerHttp(connection, static_cast<const char*>(data));
    return lws_callback_http_dummy(connection, static_cast<lws_callback_reasons>(reason), session, data, size);
}

int WebServer::answerHttp(lws* connection, const std::string& path)
{
    if (!isOwn(connection)) {
        lws_return_http_status(connection, HTTP_STATUS_FORBIDDEN, nullptr);
        return -1;
    }
    std::string type;
    std::string body;
    if (const WebPart* part = webPart(path)) {
        type = part->type;
        body = part->body;
    } else if (path == "/picture.png") {
        type = "image/png";
        body = encodePicture(drawPicture(mPhone.watch().snapshot().screen, 4));
    } else {
        return lws_return_http_status(connection, HTTP_STATUS_NOT_FOUND, nullptr) ? -1 : 0;
    }
    std::vector<unsigned char> buffer(LWS_PRE + 1024);
    unsigned char* begin = buffer.data() + LWS_PRE;
    unsigned char* place = begin;
    unsigned char* end = buffer.data() + buffer.size() - 1;
    const std::string policy = "default-src 'self'; connect-src 'self' ws://127.0.0.1:* ws://localhost:*";
    if (lws_add_http_common_headers(connection, HTTP_STATUS_OK, type.c_str(), body.size(), &place, end)
        || lws_add_http_header_by_name(connection, reinterpret_cast<const unsigned char*>("content-security-policy:"),
            reinterpret_cast<const unsigned char*>(policy.data()), static_cast<int>(policy.size()), &place, end)
        || lws_add_http_header_by_name(connection, reinterpret_cast<const unsigned char*>("cache-control:"),
            reinterpret_cast<const unsigned char*>("no-store"), 8, &place, end)
        || lws_finalize_write_http_header(connection, begin, &place, end))
        return -1;
    if (send(connection, body, LWS_WRITE_HTTP_FINAL) < 0)
        return -1;
    return lws_http_transaction_completed(connection);
}

// The web socket

int WebServer::onSocket(lws* connection, int reason, void* session, void* data, std::size_t size)
{
    auto** page = static_cast<Page**>(session);
    switch (reason) {
    case LWS_CALLBACK_FILTER_PROTOCOL_CONNECTION: return isOwn(connection) ? 0 : -1;
    case LWS_CALLBACK_ESTABLISHED:
        *page = new Page;
        mPages.insert(connection);
        lws_callback_on_writable(connection);
        break;
    case LWS_CALLBACK_CLOSED:
        delete std::exchange(*page, nullptr);
        mPages.erase(connection);
        std::erase_if(mWaiting, [connection](const auto& command) { return command.first == connection; });
        mAsker = mAsker == connection ? nullptr : mAsker;
        break;
    case LWS_CALLBACK_RECEIVE: take(connection, **page, static_cast<const char*>(data), size); break;
    case LWS_CALLBACK_SERVER_WRITEABLE: {
        const std::string message = nextMessage(**page);
        if (!message.empty() && send(connection, message, LWS_WRITE_TEXT) < 0)
            return -1;
        if (!message.empty())
            lws_callback_on_writable(connection);
        break;
    }
    default: break;
    }
    return 0;
}

void WebServer::take(lws* connection, Page& page, const char* data, std::size_t size)
{
    // What is too long is kept only as far as it takes to know that.
    if (page.incoming.size() <= LongestMessage)
        page.incoming.append(data, size);
    if (!lws_is_final_fragment(connection) || lws_remaining_packet_payload(connection) != 0)
        return;
    std::string line = std::exchange(page.incoming, {});
    if (line.size() > LongestMessage)
        page.answers.push_back(ControlCommands::refusal("too-long", "a command has at most 65536 bytes"));
    else if (mWaiting.size() >= MostWaiting)
        page.answers.push_back(ControlCommands::refusal("busy", "too many commands are waiting"));
    else
        mWaiting.emplace_back(connection, std::move(line));
    lws_callback_on_writable(connection);
}

/// Hands the worker one command after the other, and its answers to who asked.
void WebServer::takeCommands()
{
    if (const std::optional<std::string> answer = mWorker->takeAnswer(); answer && mAsker) {
        (*static_cast<Page**>(lws_wsi_user(mAsker)))->answers.push_back(*answer);
        lws_callback_on_writable(mAsker);
    }
    if (mWorker->isBusy() || mWaiting.empty())
        return;
    auto [asker, line] = std::move(mWaiting.front());
    mWaiting.pop_front();
    mAsker = asker;
    mWorker->begin(std::move(line));
}

void WebServer::wakePages()
{
    for (lws* connection : mPages) {
        if (isBehind(**static_cast<Page**>(lws_wsi_user(connection))))
            lws_callback_on_writable(connection);
    }
}

bool WebServer::isBehind(const Page& page)
{
    return page.toldScreen != mPhone.watch().snapshot().number || page.toldDelivery != mPhone.deliveries().count();
}

std::string WebServer::nextMessage(Page& page)
{
    if (!page.answers.empty()) {
        std::string answer = std::move(page.answers.front());
        page.answers.pop_front();
        return answer;
    }
    if (!isBehind(page))
        return {};
    page.toldScreen = mPhone.watch().snapshot().number;
    page.toldDelivery = mPhone.deliveries().count();
    return Json{{"event", "changed"}}.dump();
}

}
