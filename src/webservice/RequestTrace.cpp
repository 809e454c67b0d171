#include "webservice/RequestTrace.h"

#include <algorithm>
#include <iterator>

namespace corvane
{
namespace
{

struct CodeRow
{
    long code;
    TransportMeaning meaning;
};

// The error numbers of WinInet (ERROR_INTERNET_... and ERROR_HTTP_...), which the HTTP component shows as a status.
constexpr const wchar_t* kCheckCertificate = L"Let the server's administrator renew its certificate.";
constexpr CodeRow kCodes[] = {
    {12002, {L"it did not answer in time", L"Look whether the server is up and whether a firewall drops its packets."}},
    {12005, {L"the address is no web address", L"Correct the address."}},
    {12006, {L"the address is no web address", L"Correct the address."}},
    {12007,
     {L"its name is not known in this network", L"Check the name, and that the PC is in the network or its VPN."}},
    {12015, {L"it refuses the sign-in", L"Put the server into the intranet zone."}},
    {12029, {L"it refuses the connection, or nothing listens there", L"Check the port, and that the server is up."}},
    {12030, {L"the connection was cut", L"Look for limits of size or time in firewalls and proxies."}},
    {12031, {L"the connection was reset", L"Look for limits of size or time in firewalls and proxies."}},
    {12037, {L"its certificate has expired", kCheckCertificate}},
    {12038, {L"its certificate is for another name", L"Use the name that the certificate has."}},
    {12044, {L"it wants a certificate of the client", L"Install the user's certificate."}},
    {12045, {L"its certificate comes from an unknown authority", L"Install the authority's certificate on the PC."}},
    {12057,
     {L"its certificate could not be checked for revocation", L"Let the PC reach the authority's revocation list."}},
    {12152, {L"its answer is not HTTP", L"Check the port, and whether the server wants https."}},
    {12157, {L"no secure channel could be made", L"Let server and PC have a version of TLS in common."}},
    {12169, {L"its certificate is not valid", kCheckCertificate}},
    {12170, {L"its certificate was revoked", kCheckCertificate}},
    {12175, {L"no secure channel could be made", L"Let server and PC have a version of TLS in common."}},
};

std::wstring Outcome(const RequestFacts& facts)
{
    const std::wstring status = std::to_wstring(facts.status);
    switch (facts.end) {
    case RequestEnd::Answered:
        return L"HTTP " + status;
    case RequestEnd::TransportFailed: {
        const std::wstring meaning = MeaningOfTransport(facts.status).meaning;
        return L"error " + status + (meaning.empty() ? L"" : L", " + meaning);
    }
    case RequestEnd::CutShort:
        return L"HTTP " + status + L", but the answer is cut short or too long";
    case RequestEnd::TimedOut:
        return L"no answer in time";
    case RequestEnd::EndedByUser:
        return L"ended by the user";
    case RequestEnd::ThreadEnded:
        return L"ended with the host";
    case RequestEnd::NotSent:
        break;
    }
    return L"not sent";
}

} // namespace

TransportMeaning MeaningOfTransport(long code) noexcept
{
    const auto* const found = std::ranges::find(kCodes, code, &CodeRow::code);
    return found == std::end(kCodes) ? TransportMeaning{} : found->meaning;
}

std::wstring RequestLine(std::wstring_view operation, std::wstring_view server, const RequestFacts& facts)
{
    std::wstring line = L"Request\t" + std::to_wstring(facts.milliseconds) + L" ms\t" + std::to_wstring(facts.sent) +
                        L" bytes sent\t" + std::to_wstring(facts.received) + L" bytes received\t";
    return line.append(operation).append(L", ").append(server).append(L": ").append(Outcome(facts));
}

} // namespace corvane
