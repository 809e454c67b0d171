// The dictionary of the customer's terms.
#pragma once

#include "support/CustomNameTable.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvane
{

// Holds the customer's terms: the defaults, overlaid by the values cached in the user's registry, overlaid by the
// server's once they were fetched.
class CCustomNames
{
public:
    // Fetches the rows of the configuration service from a server and its page; throws Error.
    using Query = std::function<std::vector<CustomNameRow>(const std::wstring& server, const std::wstring& page)>;

    explicit CCustomNames(Query query);

    // The dictionary itself: what it is asked for it keeps.
    [[nodiscard]] CustomNameTable& GetAllCustomNames() noexcept { return m_names; }

    // A term's current value; empty for an unknown term.
    [[nodiscard]] std::wstring GetCustomName(std::wstring_view token) const { return m_names.Find(token); }

    // Whether Refresh has completed.
    [[nodiscard]] bool IsRefreshed() const noexcept { return m_refreshed; }

    // Takes the server's values into the dictionary and the registry cache, so many and so long as KeptRows has it.
    // Throws Error; the rows applied until then stay, and IsRefreshed stays as it was.
    void Refresh(const std::wstring& server, const std::wstring& page);

    // The rule of every caller: refresh on the first server that the user works with, and never again.
    void RefreshOnce(const std::wstring& server, const std::wstring& page);

private:
    Query m_query;
    CustomNameTable m_names;
    bool m_refreshed = false;
};

// The process's terms; made when the add-in connects.
extern std::unique_ptr<CCustomNames> g_oCustomNames;

// The process's terms, or Error number 91 while there are none.
[[nodiscard]] CCustomNames& CustomNames();

// The current value of a term, from the process's terms.
[[nodiscard]] std::wstring CustomName(std::wstring_view token);

} // namespace corvane
