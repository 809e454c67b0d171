#include "webservice/RequestTrace.h"

#include <gtest/gtest.h>

#include <utility>

namespace corvane
{

TEST(RequestTrace, TellsOneRequestInOneLine)
{
    const std::pair<RequestFacts, const wchar_t*> cases[] = {
        {{RequestEnd::Answered, 403, 12, 345, 6},
         L"Request\t6 ms\t12 bytes sent\t345 bytes received\tGetUser, http://server: HTTP 403"},
        {{RequestEnd::TransportFailed, 12007}, L": error 12007, its name is not known in this network"},
        {{RequestEnd::TransportFailed, 12037}, L": error 12037, its certificate has expired"},
        {{RequestEnd::TransportFailed, 12999}, L": error 12999"},
        {{RequestEnd::CutShort, 200}, L": HTTP 200, but the answer is cut short or too long"},
        {{RequestEnd::TimedOut}, L": no answer in time"},
        {{RequestEnd::EndedByUser}, L": ended by the user"},
        {{}, L": not sent"},
    };
    for (const auto& [facts, end] : cases)
        EXPECT_TRUE(RequestLine(L"GetUser", L"http://server", facts).ends_with(end)) << testing::PrintToString(end);
}

} // namespace corvane
