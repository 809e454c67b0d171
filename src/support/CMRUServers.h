// The servers that the user has worked with, kept in the user's registry.
#pragma once

#include "support/ServerRules.h"

#include <string>
#include <vector>

namespace corvane
{

// Loads the list when it is made; changes stay in memory until SaveURLs.
class CMRUServers
{
public:
    CMRUServers();

    // Moves or inserts an address at the front, without user name and password.
    void AddURL(const std::wstring& url);

    // A copy of the whole list, empty entries included, the most recent first; behind the administrators' addresses
    // where there are such, and without those that the administrators refuse.
    [[nodiscard]] std::vector<std::wstring> GetURLs() const;

    // Writes every entry of the user's own list to the registry; throws Error.
    void SaveURLs() const;

    // The address with a scheme, in lower case, without blanks at its ends.
    [[nodiscard]] std::wstring VerifyURL(const std::wstring& url) const;

private:
    std::vector<std::wstring> m_urls; // the user's own, of fixed length
    ServerPolicy m_policy;
};

} // namespace corvane
