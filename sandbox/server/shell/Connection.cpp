#include "shell/Connection.h"

#include "core/Text.h"

#include <asio/buffer.hpp>
#include <asio/read.hpp>
#include <asio/read_until.hpp>
#include <asio/write.hpp>
#include <charconv>
#include <chrono>
#include <new>
#include <optional>

namespace server
{

namespace
{

using ErrorCode = std::error_code;

constexpr std::size_t kLongestHead = std::size_t{64} * 1024;
constexpr std::size_t kLongestBody = std::size_t{1} << 30;
constexpr int kLook = 20; // milliseconds between looks at the faults file while an answer is held back

std::optional<std::size_t> LengthOfBody(const Request& request)
{
    const auto text = request.Header("Content-Length");
    if (text.empty()) return 0;
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional{length} : std::nullopt;
}

// The status to refuse a request with before its body is read, 0 for none.
int RefusalOf(const Request& request)
{
    const auto length = LengthOfBody(request);
    if (!length) return 400;
    if (*length > kLongestBody) return 413;
    return request.Header("Transfer-Encoding").empty() ? 0 : 411;
}

} // namespace

Connection::Connection(asio::ip::tcp::socket socket, Answering& answering)
    : m_socket{std::move(socket)}, m_timer{m_socket.get_executor()}, m_answering{answering}
{}

void Connection::Serve()
{
    asio::async_read_until(m_socket, asio::dynamic_buffer(m_received, kLongestHead), "\r\n\r\n",
                           [self = shared_from_this()](const ErrorCode& error, std::size_t size) {
                               if (!error)
                                   self->TakeHead(size);
                               else if (error == asio::error::not_found)
                                   self->Refuse(413);
                           });
}

void Connection::TakeHead(std::size_t size)
{
    constexpr std::size_t kEmptyLine = 2;
    auto request = ParseHead(std::string_view{m_received}.substr(0, size - kEmptyLine));
    if (!request) return Refuse(400);
    m_request = std::move(*request);
    m_received.erase(0, size);
    if (const int status = RefusalOf(m_request); status != 0) return Refuse(status);
    ReadBody(LengthOfBody(m_request).value_or(0));
}

void Connection::ReadBody(std::size_t size)
{
    ErrorCode ignored;
    if (EqualNoCase(m_request.Header("Expect"), "100-continue"))
        asio::write(m_socket, asio::buffer(std::string_view{"HTTP/1.1 100 Continue\r\n\r\n"}), ignored);
    if (m_received.size() > size) m_received.resize(size);
    try {
        m_received.reserve(size);
    } catch (const std::bad_alloc&) {
        return Refuse(413);
    }
    asio::async_read(m_socket, asio::dynamic_buffer(m_received), asio::transfer_exactly(size - m_received.size()),
                     [self = shared_from_this()](const ErrorCode& error, std::size_t) {
                         if (!error) self->Respond();
                     });
}

void Connection::Respond()
{
    m_request.body = std::move(m_received);
    m_response = m_answering.RespondTo(m_request);
    m_request = {};
    SendAfter(m_response.fault.delayMs);
}

void Connection::Refuse(int status)
{
    m_response.bytes = CutAnswer({.status = status, .body = "The request cannot be read."}, Drop::Nowhere);
    Send();
}

void Connection::SendAfter(int milliseconds)
{
    m_timer.expires_after(std::chrono::milliseconds{milliseconds});
    m_timer.async_wait([self = shared_from_this()](const ErrorCode&) {
        if (!self->m_hurried && self->m_answering.Holds(self->m_response)) return self->SendAfter(kLook);
        self->Send();
    });
}

void Connection::Send()
{
    m_sending = true;
    asio::async_write(m_socket, asio::buffer(m_response.bytes),
                      [self = shared_from_this()](const ErrorCode&, std::size_t) {
                          self->m_sending = false;
                          self->Close();
                      });
}

void Connection::Close()
{
    if (m_response.fault.drop != Drop::Nowhere) return BreakOff();
    ErrorCode ignored;
    m_socket.shutdown(asio::ip::tcp::socket::shutdown_send, ignored);
    Drain();
}

// A reset: the client gets what was sent, then a failure.
void Connection::BreakOff()
{
    ErrorCode ignored;
    m_socket.set_option(asio::socket_base::linger{true, 0}, ignored);
    m_socket.close(ignored);
}

// Lets the client close too: closing at once with bytes still unread would reset the connection and could take back an
// answer already sent.
void Connection::Drain()
{
    if (m_hurried) return;
    m_timer.expires_after(std::chrono::seconds{1});
    m_timer.async_wait([self = shared_from_this()](const ErrorCode& error) {
        ErrorCode ignored;
        if (!error) self->m_socket.close(ignored);
    });
    m_socket.async_read_some(asio::buffer(m_rest), [self = shared_from_this()](const ErrorCode& error, std::size_t) {
        if (!error) return self->Drain();
        self->m_timer.cancel();
    });
}

void Connection::Hurry()
{
    m_hurried = true;
    m_timer.cancel();
    ErrorCode ignored;
    if (!m_sending) m_socket.cancel(ignored);
}

} // namespace server
