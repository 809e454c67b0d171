#include "support/ServerPolicy.h"

#include "support/Policy.h"

namespace corvane
{

ServerPolicy ReadServerPolicy()
{
    return {.offered = Policy::List(L"ServerURL"),
            .renames = Policy::List(L"ServerRename"),
            .offeredOnly = Policy::Number(L"OfferedServersOnly").value_or(0) != 0,
            .requireHttps = Policy::Number(L"RequireHttps").value_or(0) != 0};
}

ServerDecision DecideServer(std::wstring_view address) { return DecideServer(address, ReadServerPolicy()); }

} // namespace corvane
