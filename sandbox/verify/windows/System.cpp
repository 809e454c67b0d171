#include "windows/System.h"

#include <cstring>
#include <vector>

#include <windows.h>

namespace verify
{
namespace
{

namespace fs = std::filesystem;

struct Msxml
{
    const char* name;
    const wchar_t* library;
};
constexpr Msxml kMsxmls[] = {{"3.0", L"msxml3.dll"}, {"4.0", L"msxml4.dll"}, {"6.0", L"msxml6.dll"}};

template<class Function>
Function FunctionOf(const char* name) noexcept
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), name)));
}

using WineVersion = const char*(CDECL*)();

fs::path SystemFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(::GetSystemDirectoryW(path.data(), MAX_PATH));
    return path;
}

} // namespace

bool IsWine() noexcept { return FunctionOf<WineVersion>("wine_get_version") != nullptr; }

std::string SystemName()
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (const auto get = FunctionOf<LONG(WINAPI*)(OSVERSIONINFOW*)>("RtlGetVersion")) get(&version);
    const auto name = "Windows " + std::to_string(version.dwMajorVersion) + "." +
                      std::to_string(version.dwMinorVersion) + "." + std::to_string(version.dwBuildNumber);
    const auto wine = FunctionOf<WineVersion>("wine_get_version");
    return wine == nullptr ? name : std::string{"Wine "} + wine() + ", which says " + name;
}

std::string FileVersionOf(const fs::path& file)
{
    std::vector<std::byte> data(::GetFileVersionInfoSizeW(file.c_str(), nullptr));
    void* found = nullptr;
    UINT length = 0;
    VS_FIXEDFILEINFO info{};
    if (data.empty() || !::GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()) ||
        !::VerQueryValueW(data.data(), L"\\", &found, &length) || length < sizeof info)
        return {};
    std::memcpy(&info, found, sizeof info);
    return std::to_string(HIWORD(info.dwFileVersionMS)) + "." + std::to_string(LOWORD(info.dwFileVersionMS)) + "." +
           std::to_string(HIWORD(info.dwFileVersionLS)) + "." + std::to_string(LOWORD(info.dwFileVersionLS));
}

std::string MsxmlVersions()
{
    std::string text;
    for (const auto& [name, library] : kMsxmls) {
        const auto version = FileVersionOf(SystemFolder() / library);
        text += (text.empty() ? "" : "; ") + (version.empty() ? "no " + std::string{name} : name + (": " + version));
    }
    return text;
}

} // namespace verify
