#include "support/Settings.h"

#include "platform/CodePage.h"
#include "platform/ComObject.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "platform/XmlDocument.h"
#include "support/Conversions.h"
#include "support/Policy.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvane
{
namespace
{

// The file's 8-bit text.
std::wstring ReadText(const std::wstring& path)
{
    std::string bytes(static_cast<std::size_t>(FileLength(path).value_or(0)), '\0');
    bytes.resize(ReadFile(path, std::as_writable_bytes(std::span{bytes})));
    return FromCodePage(bytes);
}

// Rounded up, since a time-out of none is asked for by nothing but a 0; and no longer than the system can count.
std::chrono::seconds WholeSeconds(double seconds)
{
    constexpr double kLongest = std::numeric_limits<std::int32_t>::max();
    return std::chrono::seconds{static_cast<std::int32_t>(std::min(std::ceil(seconds), kLongest))};
}

void Apply(const XmlDocument& document, Settings& settings)
{
    const XmlNode trace = document.SelectFirst(L"settings/setting[@name='EnableTraceLogs']");
    settings.traceEnabled = ToBooleanSafe(trace.Text(L"value"));
    const XmlNode timeout = document.SelectFirst(L"settings/setting[@name='RequestTimeoutSeconds']");
    if (const auto seconds = NumberIn(timeout.Text(L"value")); seconds && *seconds >= 0)
        settings.requestTimeout = WholeSeconds(*seconds);
}

} // namespace

Settings Settings::Read() noexcept
{
    Settings settings;
    Ignoring([&] { settings = ReadFrom(Library::Folder()); });
    return settings;
}

Settings Settings::ReadFrom(const std::wstring& folder) noexcept
{
    Settings settings;
    Ignoring([&] {
        const std::wstring path = folder + L"\\settings.config";
        if (!FileExists(path)) return;
        XmlDocument document;
        if (document.Load(ReadText(path))) Apply(document, settings);
    });
    return settings.Under({Policy::Number(L"EnableTraceLogs"), Policy::Number(L"RequestTimeoutSeconds")});
}

} // namespace corvane
