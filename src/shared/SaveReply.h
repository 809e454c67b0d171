// What the server's answer to a recorded version tells the user, and whether a document's macros run around a save.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane
{

struct HostTraits;

enum class ReplyKind
{
    Nothing,
    Cancelled,  // text tells why; the save is over
    BrokenLinks // text lists them; the save stands
};

struct SaveReply
{
    ReplyKind kind = ReplyKind::Nothing;
    std::wstring text;
};

// Reads the prefixes "CancelMessage:" and "BrokenLinks:" at the very start of an answer, case-sensitively. A prefix
// with nothing behind it means nothing.
[[nodiscard]] SaveReply ReadSaveReply(std::wstring_view answer);

// What decides whether a document's save macros run.
struct ClientEventFacts
{
    std::optional<std::wstring> doEvents; // the document's own switch, when it has one
    const HostTraits* host = nullptr;     // null for none of the four
    int hostVersion = 0;
};

// The decision before the server's switch is asked. Without a switch in the document only Word 2002 (10) stays out.
[[nodiscard]] bool WantsClientEvents(const ClientEventFacts& facts);

// The server's switch: exactly "1" is on.
inline constexpr const wchar_t* kClientEventsSetting = L"EnableOFFIClientEvents";
[[nodiscard]] constexpr bool IsClientEventsSettingOn(std::wstring_view value) noexcept { return value == L"1"; }

} // namespace corvane
