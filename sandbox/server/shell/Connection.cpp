#include "shell/Connection.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <sys/socket.h>
#include <unistd.h>

namespace server
{

namespace
{

constexpr std::size_t kLongestHead = 64 * 1024;
constexpr std::size_t kLongestBody = std::size_t{1} << 30;

std::optional<std::size_t> ParseLength(std::string_view text)
{
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional{length} : std::nullopt;
}

// Repeats a call that a signal cut short: a process that is stopped and goes on ends those of a socket with a time-out,
// which the library gives to each.
template<typename Call>
ssize_t Uninterrupted(Call call) noexcept
{
    ssize_t count = 0;
    do
        count = call();
    while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

Connection::~Connection()
{
    constexpr linger kReset{.l_onoff = 1, .l_linger = 0};
    if (m_breakOff)
        ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &kReset, sizeof kReset);
    else
        CloseInOrder();
    ::close(m_socket);
}

// Says first that nothing more follows and lets the client close too: closing at once with bytes still unread would
// reset the connection and could take back an answer already sent.
void Connection::CloseInOrder() noexcept
{
    ::shutdown(m_socket, SHUT_WR);
    constexpr timeval kPatience{.tv_sec = 1, .tv_usec = 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
    std::array<char, 4096> rest{};
    while (Uninterrupted([&] { return ::recv(m_socket, rest.data(), rest.size(), 0); }) > 0) {
    }
}

std::optional<Request> Connection::ReadRequest(int& problem)
{
    problem = 0;
    auto end = m_received.find("\r\n\r\n");
    for (; end == std::string::npos; end = m_received.find("\r\n\r\n")) {
        if (m_received.size() > kLongestHead) problem = 413;
        if (problem != 0 || !ReadMore()) return std::nullopt;
    }
    auto request = ParseHead(std::string_view{m_received}.substr(0, end + 2));
    m_received.erase(0, end + 4);
    if (!request) problem = 400;
    if (!request || !ReadBody(*request, problem)) return std::nullopt;
    return request;
}

bool Connection::ReadBody(Request& request, int& problem)
{
    if (!request.Header("Transfer-Encoding").empty()) problem = 411;
    const auto text = request.Header("Content-Length");
    const auto length = text.empty() ? std::optional{std::size_t{0}} : ParseLength(text);
    if (!length)
        problem = 400;
    else if (*length > kLongestBody)
        problem = 413;
    if (problem != 0) return false;
    if (EqualNoCase(request.Header("Expect"), "100-continue")) Send("HTTP/1.1 100 Continue\r\n\r\n");
    m_received.reserve(*length);
    while (m_received.size() < *length)
        if (!ReadMore()) return false;
    m_received.resize(*length);
    request.body = std::move(m_received);
    return true;
}

bool Connection::ReadMore()
{
    std::array<char, 64 * 1024> buffer;
    const auto count = Uninterrupted([&] { return ::recv(m_socket, buffer.data(), buffer.size(), 0); });
    if (count <= 0) return false;
    m_received.append(buffer.data(), static_cast<std::size_t>(count));
    return true;
}

void Connection::Send(std::string_view bytes) noexcept
{
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL); });
        if (count <= 0) return;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace server
