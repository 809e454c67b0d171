#pragma once

#include <functional>
#include <thread>

namespace server
{

// Leaves SIGTERM and SIGINT to the StopWatch. Called before the first thread is made, for all of them to inherit it.
void BlockStopSignals();

// Calls back once when the process is asked to end, or when the watch itself ends; on a thread that has ended when the
// watch is gone.
class StopWatch
{
public:
    explicit StopWatch(std::function<void()> onStop);
    StopWatch(const StopWatch&) = delete;
    StopWatch& operator=(const StopWatch&) = delete;
    ~StopWatch();

private:
    std::thread m_thread;
};

} // namespace server
