// One connection of a client, from its first byte to its close.
#pragma once

#include "shell/Answering.h"

#include <array>
#include <asio/ip/tcp.hpp>
#include <asio/steady_timer.hpp>
#include <memory>
#include <string>

namespace server
{

// Reads one request, sends its response and closes. Lives as long as anything is still to happen on the connection. A
// response that cannot be sent any more, because the client is gone, is dropped silently.
class Connection : public std::enable_shared_from_this<Connection>
{
public:
    // `answering` outlives this object.
    Connection(asio::ip::tcp::socket socket, Answering& answering);

    void Serve();

    // The server ends: a request that is not there yet is not waited for, a response that waits is sent at once.
    void Hurry();

private:
    void TakeHead(std::size_t size);
    void ReadBody(std::size_t size);
    void Respond();
    void Refuse(int status);
    void SendAfter(int milliseconds);
    void Send();
    void Close();
    void BreakOff();
    void Drain();

    asio::ip::tcp::socket m_socket;
    asio::steady_timer m_timer;
    Answering& m_answering;
    std::string m_received;
    Request m_request;
    Response m_response;
    std::array<char, 4096> m_rest{};
    bool m_sending = false;
    bool m_hurried = false;
};

} // namespace server
