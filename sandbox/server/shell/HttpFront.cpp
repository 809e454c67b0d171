#include "shell/HttpFront.h"

#include "shell/Connection.h"

#include <asio/post.hpp>
#include <stdexcept>
#include <string>

namespace server
{

namespace
{

using asio::ip::tcp;

// Where a port that was just closed stays taken for a while, it may be used anew. On Windows it does not stay taken,
// and the option would let two servers share it.
#ifdef _WIN32
constexpr bool kReuseAddress = false;
#else
constexpr bool kReuseAddress = true;
#endif

} // namespace

HttpFront::HttpFront(asio::io_context& context, Answering answering)
    : m_context{context}, m_acceptor{context}, m_answering{std::move(answering)}
{}

int HttpFront::Bind(int port)
{
    const tcp::endpoint local{asio::ip::address_v4::loopback(), static_cast<asio::ip::port_type>(port)};
    try {
        m_acceptor = tcp::acceptor{m_context, local, kReuseAddress};
    } catch (const std::system_error&) {
        throw std::runtime_error{"Port " + std::to_string(port) + " cannot be opened."};
    }
    Accept();
    return m_acceptor.local_endpoint().port();
}

void HttpFront::Accept()
{
    m_acceptor.async_accept([this](const std::error_code& error, tcp::socket socket) {
        if (!m_acceptor.is_open()) return;
        if (!error) Serve(std::move(socket));
        Accept();
    });
}

void HttpFront::Serve(tcp::socket socket)
{
    std::erase_if(m_connections, [](const auto& connection) { return connection.expired(); });
    const auto connection = std::make_shared<Connection>(std::move(socket), m_answering);
    m_connections.push_back(connection);
    connection->Serve();
}

void HttpFront::Stop()
{
    asio::post(m_context, [this] {
        m_acceptor.close();
        for (const auto& connection : m_connections)
            if (const auto open = connection.lock()) open->Hurry();
    });
}

} // namespace server
