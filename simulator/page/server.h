// The page and what it asks for, over HTTP on this machine alone.
#pragma once

#include "page/desk.h"

#include <httplib.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace simulator::page {

class Server {
  public:
    // Reads the page's files; throws std::runtime_error for one that is missing.
    Server(Desk& desk, const std::filesystem::path& pageFiles);

    // Takes a port of 127.0.0.1, any free one for 0, and returns it. Throws std::runtime_error when it is
    // taken.
    int bind(int port);
    void serve(); // until stop()
    void stop();  // any thread

  private:
    using Request = httplib::Request;
    using Response = httplib::Response;

    bool refuses(const Request& request, Response& response) const;
    bool isOwnAddress(const std::string& host) const;
    void sendEvents(Response& response);
    void perform(const Request& request, Response& response);

    Desk& m_desk;
    httplib::Server m_http;
    std::map<std::string, std::string> m_methods; // by path: all that there is
    int m_port = 0;
};

} // namespace simulator::page
