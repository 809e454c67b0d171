// Which servers may be contacted, and in which form their addresses are written down.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

// The administrators' rules about servers. Without any, every server may be contacted.
struct ServerPolicy
{
    std::vector<std::wstring> offered{}; // the servers that users are offered
    std::vector<std::wstring> renames{}; // "old=new", two addresses
    bool offeredOnly = false;            // no other server than these
    bool requireHttps = false;           // none without encryption
};

// Why a server may not be contacted.
enum class ServerRefusal
{
    None,
    NotOffered,
    NotEncrypted
};

// What becomes of an address under a policy.
struct ServerDecision
{
    std::wstring address; // after a renaming
    ServerRefusal refusal = ServerRefusal::None;

    // The address, or nothing when it is refused.
    [[nodiscard]] std::wstring Usable() const { return refusal == ServerRefusal::None ? address : std::wstring{}; }
};

// The server that a document names: the text itself when it is "http(s)://host[:port][/path]" without user name, query,
// fragment, backslash, blanks and what cannot be seen, otherwise nothing. Whoever wrote the document wrote this text.
[[nodiscard]] std::wstring DocumentServer(std::wstring_view text);

// The address without user name and password.
[[nodiscard]] std::wstring WithoutCredentials(std::wstring_view address);

// The text with stars in place of the user name and password of every address in it.
[[nodiscard]] std::wstring WithoutCredentialsInText(std::wstring_view text);

// The new address of the first renaming of this one, otherwise the address itself. Addresses are the same when they are
// in the form that VerifyServerURL gives them, but for user name, password and a slash at the end. A renaming that is
// not "old=new", or whose new address no document could name, renames nothing.
[[nodiscard]] std::wstring Renamed(std::wstring_view address, const std::vector<std::wstring>& renames);

// What becomes of an address, which may be empty: then nothing.
[[nodiscard]] ServerDecision DecideServer(std::wstring_view address, const ServerPolicy& policy);

// What the user is told of a refused address.
[[nodiscard]] std::wstring RefusalText(const ServerDecision& decision);

// The list of servers that the user has worked with, as it may be kept: without user names and passwords, and renamed.
// Where that makes two entries one, the later of them becomes empty.
[[nodiscard]] std::vector<std::wstring> RememberedServers(const std::vector<std::wstring>& urls,
                                                          const std::vector<std::wstring>& renames);

// The list without what the policy refuses.
[[nodiscard]] std::vector<std::wstring> WithoutRefused(std::vector<std::wstring> urls, const ServerPolicy& policy);

} // namespace corvane
