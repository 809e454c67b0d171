#include "shell/StopSignals.h"

#include <csignal>
#include <pthread.h>

namespace server
{

namespace
{

sigset_t StopSignals()
{
    sigset_t signals{};
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    ::sigaddset(&signals, SIGINT);
    return signals;
}

} // namespace

void BlockStopSignals()
{
    const auto signals = StopSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

StopWatch::StopWatch(std::function<void()> onStop)
    : m_thread{[call = std::move(onStop)] {
          const auto signals = StopSignals();
          int signal = 0;
          ::sigwait(&signals, &signal);
          call();
      }}
{}

// A thread that has already ended but is not yet joined may still be signalled.
StopWatch::~StopWatch()
{
    ::pthread_kill(m_thread.native_handle(), SIGTERM);
    m_thread.join();
}

} // namespace server
