#pragma once

#include "core/Http.h"
#include "shell/Faults.h"
#include "shell/RequestLog.h"

#include <condition_variable>
#include <functional>
#include <httplib.h>
#include <mutex>
#include <set>

namespace server
{

// Listens and answers. The library accepts the connections and spreads them over its threads; requests are read from
// the socket here, because the library keeps neither the raw target nor the order of headers and cannot cut an answer.
class HttpFront : private httplib::Server
{
public:
    using Handler = std::function<Answer(const Request&)>;

    // The handler is called by one thread at a time. Log and faults outlive this object.
    HttpFront(Handler handler, RequestLog& log, Faults& faults);

    // Binds to a port of 127.0.0.1, 0 for any free one, and returns it. From then on clients can connect. Throws
    // std::runtime_error when the port is not free.
    [[nodiscard]] int Bind(int port);

    // Serves until Stop is called, which may be before.
    void Run();
    void Stop();

private:
    bool process_and_close_socket(socket_t socket) override;

    void Serve(int socket);
    [[nodiscard]] Answer AnswerTo(const Request& request, const Fault& fault);
    [[nodiscard]] Fault NextFault(const Request& request);
    bool Wait(int milliseconds); // whether the server was stopped before the time was over

    Handler m_handler;
    RequestLog& m_log;
    Faults& m_faults;
    std::mutex m_handling;
    std::mutex m_mutex;
    std::condition_variable m_stopping;
    std::set<int> m_open;
    bool m_stopped = false;
};

// The part of an answer that is sent before the connection is cut. A body that is announced but empty is announced one
// byte long, so that the cut shows.
[[nodiscard]] std::string CutAnswer(const Answer& answer, Drop drop);

} // namespace server
