#include "shell/HttpFront.h"

#include "shell/Connection.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <sys/socket.h>

namespace server
{

namespace
{

constexpr std::size_t kThreads = 32;
constexpr int kLook = 20; // milliseconds between looks at the faults file while an answer is held back

// Two servers must not share a port, which the library's own options allow.
void ReuseAddressOnly(socket_t socket)
{
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
}

void ApplyTo(Answer& answer, const Fault& fault)
{
    if (fault.status) answer.status = *fault.status;
    if (!fault.location.empty()) answer.headers.emplace_back("Location", fault.location);
    if (fault.body) {
        answer.body = *fault.body;
        answer.contentType = fault.body->starts_with('<') ? "text/xml; charset=utf-8" : "text/plain; charset=utf-8";
    }
    if (!fault.contentType.empty()) answer.contentType = fault.contentType;
}

} // namespace

std::string CutAnswer(const Answer& answer, Drop drop)
{
    if (drop == Drop::BeforeAnswer) return {};
    const bool whole = drop == Drop::Nowhere;
    const auto head = FormatHead(answer, whole ? answer.body.size() : std::max<std::size_t>(answer.body.size(), 1));
    if (whole) return head + answer.body;
    if (drop == Drop::WithinBody) return head + answer.body.substr(0, answer.body.size() / 2);
    if (drop == Drop::WithinStatus) return head.substr(0, head.find(' '));
    return head.substr(0, head.find("\r\n", head.find("\r\n") + 2) + 2);
}

HttpFront::HttpFront(Handler handler, RequestLog& log, Faults& faults)
    : m_handler{std::move(handler)}, m_log{log}, m_faults{faults}
{
    new_task_queue = [] { return new httplib::ThreadPool(kThreads); };
    set_socket_options(ReuseAddressOnly);
}

int HttpFront::Bind(int port)
{
    constexpr const char* kAddress = "127.0.0.1";
    const int bound = port == 0 ? bind_to_any_port(kAddress) : (bind_to_port(kAddress, port) ? port : -1);
    if (bound <= 0) throw std::runtime_error{"Port " + std::to_string(port) + " cannot be opened."};
    return bound;
}

void HttpFront::Run() { listen_after_bind(); }

void HttpFront::Stop()
{
    {
        const std::lock_guard lock{m_mutex};
        m_stopped = true;
        for (const int socket : m_open)
            ::shutdown(socket, SHUT_RD);
    }
    m_stopping.notify_all();
    const int listening = svr_sock_.exchange(INVALID_SOCKET);
    if (listening == INVALID_SOCKET) return;
    ::shutdown(listening, SHUT_RDWR);
    ::close(listening);
}

bool HttpFront::process_and_close_socket(socket_t socket)
{
    {
        const std::lock_guard lock{m_mutex};
        m_open.insert(socket);
        if (m_stopped) ::shutdown(socket, SHUT_RD);
    }
    Serve(socket);
    return true;
}

void HttpFront::Serve(int socket)
{
    Connection connection{socket};
    int problem = 0;
    const auto request = connection.ReadRequest(problem);
    if (request) {
        const auto fault = NextFault(*request);
        const auto answer = AnswerTo(*request, fault);
        m_log.Write(*request, fault.drop == Drop::BeforeAnswer ? 0 : answer.status);
        Wait(fault.delayMs);
        while (m_faults.Holds(fault) && !Wait(kLook)) {
        }
        connection.Send(CutAnswer(answer, fault.drop));
        if (fault.drop != Drop::Nowhere) connection.BreakOff();
    } else if (problem != 0) {
        connection.Send(CutAnswer({.status = problem, .body = "The request cannot be read."}, Drop::Nowhere));
    }
    const std::lock_guard lock{m_mutex};
    m_open.erase(socket);
}

Fault HttpFront::NextFault(const Request& request)
{
    try {
        return m_faults.Next(request.target, request.body).value_or(Fault{});
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "corvane-server: faults file ignored: %s\n", problem.what());
        return {};
    }
}

Answer HttpFront::AnswerTo(const Request& request, const Fault& fault)
{
    Answer answer;
    if (!fault.status && !fault.body && fault.drop != Drop::BeforeAnswer) {
        const std::lock_guard lock{m_handling};
        answer = m_handler(request);
    }
    ApplyTo(answer, fault);
    return answer;
}

bool HttpFront::Wait(int milliseconds)
{
    std::unique_lock lock{m_mutex};
    return m_stopping.wait_for(lock, std::chrono::milliseconds{milliseconds}, [&] { return m_stopped; });
}

} // namespace server
