#include "platform/ComObject.h"

#include "platform/HResult.h"

namespace corvane
{

std::atomic<long> Library::s_count{0};
HINSTANCE Library::s_module = nullptr;

std::wstring Library::Path()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(s_module, path.data(), static_cast<DWORD>(path.size()));
        CheckWin32(length != 0, L"Library.Path");
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring Library::Folder()
{
    const std::wstring path = Path();
    return path.substr(0, path.find_last_of(L'\\'));
}

ComPtr<ITypeInfo> TypeInfoOf(REFIID interfaceId)
{
    ComPtr<ITypeLib> library;
    Check(::LoadTypeLibEx(Library::Path().c_str(), REGKIND_NONE, library.GetAddressOf()), L"TypeInfoOf");
    ComPtr<ITypeInfo> info;
    Check(library->GetTypeInfoOfGuid(interfaceId, info.GetAddressOf()), L"TypeInfoOf");
    return info;
}

} // namespace corvane
