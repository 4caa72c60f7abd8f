#include "page/server.h"

#include "page/contents.h"

#include <fstream>

namespace simulator::page {

namespace {

constexpr const char* address = "127.0.0.1";
constexpr std::size_t longestBody = 4096;
constexpr double secondsBetweenSignsOfLife = 5; // so that a page that has gone is noticed

// All files that are ever sent.
constexpr struct {
    const char* path;
    const char* file;
    const char* type;
} pageFileTable[] = {
    {"/", "index.html", "text/html; charset=utf-8"}, {"/page.css", "page.css", "text/css"},
    {"/page.js", "page.js", "text/javascript"},      {"/phone.js", "phone.js", "text/javascript"},
    {"/panels.js", "panels.js", "text/javascript"},
};

std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

void answer(httplib::Response& response, int status, const std::string& sentence) {
    response.status = status;
    response.set_content(sentence + "\n", "text/plain; charset=utf-8");
}

const httplib::Headers commonHeaders = {
    {"Content-Security-Policy",
     "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; connect-src 'self'; "
     "base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
    {"Cross-Origin-Resource-Policy", "same-origin"},
    {"X-Content-Type-Options", "nosniff"},
    {"Referrer-Policy", "no-referrer"},
    {"Cache-Control", "no-store"},
};

} // namespace

Server::Server(Desk& desk, const std::filesystem::path& pageFiles) : m_desk(desk) {
    // Pages that look keep a thread each, and there must be some left for what they ask.
    m_http.new_task_queue = [] { return new httplib::ThreadPool(Desk::mostWatchers + 8); };
    m_http.set_keep_alive_max_count(1);
    // Not the library's own choice, with which two servers would share a port.
    m_http.set_socket_options([](int socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    m_http.set_payload_max_length(longestBody);
    m_http.set_default_headers(commonHeaders);
    m_http.set_pre_routing_handler([this](const Request& request, Response& response) {
        return refuses(request, response) ? httplib::Server::HandlerResponse::Handled
                                          : httplib::Server::HandlerResponse::Unhandled;
    });
    m_http.set_error_handler([](const Request&, Response& response) {
        if (!response.body.empty()) return;
        answer(response, response.status,
               response.status == 413 ? "This is too much." : "This is not understood.");
    });
    m_http.set_exception_handler([](const Request&, Response& response, const std::exception_ptr&) {
        answer(response, 500, "This went wrong.");
    });
    const auto get = [this](const char* path, const httplib::Server::Handler& handler) {
        m_methods[path] = "GET";
        m_http.Get(path, handler);
    };
    for (const auto& [path, file, type] : pageFileTable)
        get(path, [bytes = contentsOf(pageFiles / file), type = type](const Request&, Response& response) {
            response.set_content(bytes, type);
        });
    get("/screen.svg", [this](const Request&, Response& response) {
        // Said with its letters, this type is sent as it is: compressing takes long under emulation.
        response.set_content(m_desk.sight().screen, "image/svg+xml; charset=utf-8");
    });
    get("/photo", [this](const Request& request, Response& response) {
        if (const auto png = thumbnailOf(m_desk.photos(), request.get_param_value("id")))
            response.set_content(*png, "image/png");
        else
            answer(response, 404, "There is no such photo.");
    });
    get("/events", [this](const Request&, Response& response) { sendEvents(response); });
    m_methods["/do"] = "POST";
    m_http.Post("/do", [this](const Request& request, Response& response) { perform(request, response); });
}

int Server::bind(int port) {
    m_port = port == 0 ? m_http.bind_to_any_port(address) : m_http.bind_to_port(address, port) ? port : -1;
    if (m_port < 0)
        throw std::runtime_error("cannot listen on port " + std::to_string(port) + " of " + address);
    return m_port;
}

void Server::serve() { m_http.listen_after_bind(); }

void Server::stop() { m_http.stop(); }

bool Server::isOwnAddress(const std::string& host) const {
    const std::string port = ":" + std::to_string(m_port);
    return host == address + port || host == "localhost" + port;
}

// Another page in the same browser must neither reach the device nor read from it: not under a name of its
// own that leads here, and not by sending its requests here.
bool Server::refuses(const Request& request, Response& response) const {
    const std::string origin = request.get_header_value("Origin");
    const std::string site = request.get_header_value("Sec-Fetch-Site");
    const std::string scheme = "http://";
    const bool isOwnOrigin =
        origin.empty() || (origin.starts_with(scheme) && isOwnAddress(origin.substr(scheme.size())));
    const bool isOwnSite = site.empty() || site == "same-origin" || site == "none";
    const auto method = m_methods.find(request.path);
    if (!isOwnAddress(request.get_header_value("Host")))
        answer(response, 421, "This device answers only at " + std::string(address) + " and localhost.");
    else if (!isOwnOrigin || !isOwnSite)
        answer(response, 403, "Another page may not use this device.");
    else if (method == m_methods.end())
        answer(response, 404, "There is nothing here.");
    else if (request.method != method->second) {
        response.set_header("Allow", method->second);
        answer(response, 405, "Only " + method->second + " is answered here.");
    } else
        return false;
    return true;
}

void Server::sendEvents(Response& response) {
    std::shared_ptr<Desk::Watcher> watcher;
    try {
        watcher = std::make_shared<Desk::Watcher>(m_desk);
    } catch (const std::runtime_error& error) {
        return answer(response, 503, error.what());
    }
    response.set_chunked_content_provider(
        "text/event-stream",
        [this, watcher, sent = std::uint64_t{0}](std::size_t, httplib::DataSink& sink) mutable {
            const auto sight = m_desk.sightAfter(sent, secondsBetweenSignsOfLife);
            if (!sight) {
                sink.done();
                return true;
            }
            const std::string event = sight->number == sent ? ":\n\n" : "data: " + sight->state + "\n\n";
            sent = sight->number;
            return sink.write(event.data(), event.size());
        });
}

void Server::perform(const Request& request, Response& response) {
    if (request.get_header_value("Content-Type") != "application/json")
        return answer(response, 415, "Only application/json is understood.");
    try {
        m_desk.perform(nlohmann::json::parse(request.body));
        response.status = 204;
    } catch (const nlohmann::json::exception& error) {
        answer(response, 400, error.what());
    } catch (const BadRequest& error) {
        answer(response, 400, error.what());
    } catch (const std::exception& error) {
        answer(response, 409, error.what());
    }
}

} // namespace simulator::page
