// What a document names is a plain address or nothing; no user name is left over; what rules refuse is never usable.
#include "support/ServerRules.h"
#include "Input.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    const ServerPolicy policy{
        {input.Text()}, {input.Text(), input.Text() + L"=" + input.Text()}, input.Choice(), input.Choice()};
    const std::wstring address = input.Rest();

    const std::wstring named = DocumentServer(address);
    Require(named.empty() || (named == address && WithoutCredentials(named) == named));
    Require(named.find_first_of(L"\\?# \t\r\n") == std::wstring::npos);
    const std::wstring clean = WithoutCredentials(address);
    Require(WithoutCredentials(clean) == clean && WithoutCredentialsInText(WithoutCredentialsInText(address)).size() ==
                                                      WithoutCredentialsInText(address).size());

    const ServerDecision decision = DecideServer(address, policy);
    Require(decision.address == address || !DocumentServer(decision.address).empty());
    Require(decision.refusal == ServerRefusal::None || (decision.Usable().empty() && !address.empty()));
    Require(DecideServer(address, {}).Usable() == address);
    Require(address.empty() || !DecideServer(address, {.offeredOnly = true}).Usable().size());
    const auto kept = RememberedServers({address, address, named}, policy.renames);
    Require(kept.size() == 3 && kept.front() == Renamed(clean, policy.renames));
}
