// A file's name holds nothing that the system refuses, and every host tells a format for what it can write.
#include "shared/DocumentNames.h"
#include "Input.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    constexpr const wchar_t* kHosts[] = {kWordName, kExcelName, kPowerPointName, kOutlookName};
    const HostTraits& host = *FindHost(kHosts[input.Number(0, 3)]);
    static_cast<void>(MajorVersion(input.Text()));
    const int version = input.Number(0, 100);
    const std::wstring path = input.Text();
    const std::wstring title = input.Rest();
    const std::wstring name = AsFileName(title);
    constexpr std::size_t kLongest = 121;
    Require(name.size() <= kLongest && name.find_first_of(L"\\/:*?\"<>|") == std::wstring::npos);
    Require(!name.empty() && name.back() != L'.' && name.back() != L' ' && AsFileName(name) == name);
    Require(path.ends_with(ExtensionOf(path)));
    Require(!TitleWithExtension(title, L".x").empty() && UploadNameOf(title, path).starts_with(title));
    const bool hasMacros = input.Choice();
    Require(!TitleOf(host, version, title, input.Choice(), hasMacros).empty());
    Require(SaveTypeFor(host, version, DefaultExtension(host, version, hasMacros)).has_value());
    static_cast<void>(SaveTypeFor(host, version, path));
    static_cast<void>(PlanDiskSave({path, title, false}));
}
