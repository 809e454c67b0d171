#include "platform/OwnerlessRequests.h"

#include "platform/Procedure.h"

#include <vector>

namespace corvane
{
namespace
{

constexpr long kComplete = 4;

// Oldest first. Never destroyed: at the end of a process without a disconnection their component may already be gone.
std::vector<ComPtr<IXMLHTTPRequest>>& Ownerless()
{
    static auto* const requests = new std::vector<ComPtr<IXMLHTTPRequest>>;
    return *requests;
}

// How many may go on. Each holds one of the few connections that the system allows to a server, and a failed one may
// never come to an end.
std::size_t MostOwnerless() noexcept
{
    static const bool isWine = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return isWine ? 256 : 0;
}

bool HasEnded(const ComPtr<IXMLHTTPRequest>& request)
{
    long state = kComplete;
    request->get_readyState(&state);
    return state == kComplete;
}

} // namespace

void LetGoOf(ComPtr<IXMLHTTPRequest> request) noexcept
{
    Ignoring([&] {
        auto& requests = Ownerless();
        requests.push_back(std::move(request));
        std::erase_if(requests, HasEnded);
        while (requests.size() > MostOwnerless()) {
            requests.front()->abort();
            requests.erase(requests.begin());
        }
    });
}

void AbortOwnerless() noexcept
{
    for (const auto& request : Ownerless())
        request->abort();
    Ownerless().clear();
}

} // namespace corvane
