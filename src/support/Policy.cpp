#include "support/Policy.h"

#include "platform/Registry.h"

namespace corvane::Policy
{
namespace
{

constexpr Registry::Place kMachine{.hive = Registry::Hive::Machine};
constexpr Registry::Place kUser{.hive = Registry::Hive::User};

std::vector<std::wstring> ListAt(const std::wstring& name, Registry::Place place)
{
    const std::wstring key = std::wstring{kKey} + L"\\" + name + L"s";
    std::vector<std::wstring> texts;
    while (auto text = Registry::ReadText(key, name + std::to_wstring(texts.size() + 1), place))
        texts.push_back(*std::move(text));
    return texts;
}

} // namespace

std::optional<std::int32_t> Number(const std::wstring& name) noexcept
{
    const auto machine = Registry::ReadNumber(kKey, name, kMachine);
    return machine ? machine : Registry::ReadNumber(kKey, name, kUser);
}

std::vector<std::wstring> List(const std::wstring& name)
{
    std::vector<std::wstring> machine = ListAt(name, kMachine);
    return machine.empty() ? ListAt(name, kUser) : machine;
}

} // namespace corvane::Policy

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
