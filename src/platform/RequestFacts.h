// What is known of a request when it has ended.
#pragma once

#include <cstddef>
#include <cstdint>

namespace corvane
{

// How a request ended, as far as it was sent.
enum class RequestEnd
{
    Answered,        // whatever the status
    TransportFailed, // with a code of the transport
    CutShort,        // the answer, or more than is taken
    TimedOut,
    EndedByUser,
    NotSent,
    ThreadEnded
};

// Of a request that was sent, to its end.
struct RequestFacts
{
    RequestEnd end = RequestEnd::NotSent;
    long status = 0;      // HTTP's, or the transport's code (WinInet); 0 where neither is known
    std::size_t sent = 0; // bytes of bodies
    std::size_t received = 0;
    std::int64_t milliseconds = 0; // from the sending to the end
};

} // namespace corvane
