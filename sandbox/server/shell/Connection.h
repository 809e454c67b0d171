#pragma once

#include "core/Http.h"

#include <optional>
#include <string>
#include <string_view>

namespace server
{

// Owns one accepted socket; closing it is how an answer ends, or is cut off.
class Connection
{
public:
    explicit Connection(int socket) noexcept : m_socket{socket} {}
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    // Reads one whole request. On failure `problem` is the status to answer with, 0 when the client is gone.
    [[nodiscard]] std::optional<Request> ReadRequest(int& problem);

    // What cannot be sent any more, because the client is gone, is dropped silently.
    void Send(std::string_view bytes) noexcept;

    // Lets the connection end by a reset instead of an orderly close: the client gets what was sent, then a failure.
    void BreakOff() noexcept { m_breakOff = true; }

private:
    void CloseInOrder() noexcept;
    [[nodiscard]] bool ReadMore();
    [[nodiscard]] bool ReadBody(Request& request, int& problem);

    int m_socket;
    bool m_breakOff = false;
    std::string m_received;
};

} // namespace server
