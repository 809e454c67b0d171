// The port on which the server listens.
#pragma once

#include "shell/Answering.h"

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <memory>
#include <vector>

namespace server
{

class Connection;

// Accepts connections and serves them, all of it on the thread that runs the context.
class HttpFront
{
public:
    // The context outlives this object, and so does what the answering refers to.
    HttpFront(asio::io_context& context, Answering answering);

    // Binds to a port of 127.0.0.1, 0 for any free one, and returns it. From then on clients can connect. Throws
    // std::runtime_error when the port is not free.
    [[nodiscard]] int Bind(int port);

    // Closes the port and hurries what is under way; then the context has no more work from here. Any thread may call.
    void Stop();

private:
    void Accept();
    void Serve(asio::ip::tcp::socket socket);

    asio::io_context& m_context;
    asio::ip::tcp::acceptor m_acceptor;
    Answering m_answering;
    std::vector<std::weak_ptr<Connection>> m_connections;
};

} // namespace server
