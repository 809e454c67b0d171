#include "automation/ClassLoader.h"

#include "base/Console.h"
#include "platform/Registry.h"

namespace host
{
namespace
{

using corvane::GuidText;
using corvane::Registry::ReadText;

constexpr wchar_t kUserClasses[] = L"Software\\Classes\\";
constexpr wchar_t kNotCreated[] = L"its class could not be created";

using GetClassObject = HRESULT(STDMETHODCALLTYPE*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(STDMETHODCALLTYPE*)();

template<class Function>
Function FindExport(HMODULE library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

std::wstring UserLibraryOf(REFCLSID classId)
{
    const std::wstring key = kUserClasses + (L"CLSID\\" + GuidText(classId)) + L"\\InprocServer32";
    return ReadText(key, {}).value_or(L"");
}

} // namespace

ClassLoader::~ClassLoader() = default; // what is still loaded is still needed

CLSID ClassLoader::ClassOf(const std::wstring& progId)
{
    CLSID classId{};
    const auto own = ReadText(kUserClasses + progId + L"\\CLSID", {});
    const HRESULT found = own ? ::CLSIDFromString(own->c_str(), &classId) : ::CLSIDFromProgID(progId.c_str(), &classId);
    ThrowIfFailed(found, L"its ProgID is not registered");
    return classId;
}

ComPtr<IUnknown> ClassLoader::Create(REFCLSID classId)
{
    ComPtr<IUnknown> object;
    const std::wstring library = UserLibraryOf(classId);
    if (library.empty()) {
        ThrowIfFailed(::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())),
                      kNotCreated);
        return object;
    }
    const auto getClassObject = FindExport<GetClassObject>(Load(library), "DllGetClassObject");
    if (getClassObject == nullptr) throw Error{CO_E_ERRORINDLL, {}, L"its library exports no DllGetClassObject"};
    ComPtr<IClassFactory> factory;
    ThrowIfFailed(getClassObject(classId, IID_PPV_ARGS(factory.GetAddressOf())),
                  L"its library does not know the class");
    ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(object.GetAddressOf())), kNotCreated);
    return object;
}

void ClassLoader::UnloadUnused()
{
    for (auto at = m_libraries.begin(); at != m_libraries.end();) {
        const auto canUnload = FindExport<CanUnloadNow>(at->second, "DllCanUnloadNow");
        const bool unused = canUnload != nullptr && canUnload() == S_OK;
        Print(std::wstring{L"DllCanUnloadNow: "} + (canUnload == nullptr ? L"not exported"
                                                    : unused             ? L"S_OK"
                                                                         : L"S_FALSE"));
        if (unused) ::FreeLibrary(at->second);
        at = unused ? m_libraries.erase(at) : std::next(at);
    }
    ::CoFreeUnusedLibrariesEx(0, 0);
}

HMODULE ClassLoader::Load(const std::wstring& path)
{
    const auto loaded = m_libraries.find(path);
    if (loaded != m_libraries.end()) return loaded->second;
    const HMODULE library = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr)
        throw Error{HRESULT_FROM_WIN32(::GetLastError()), {}, L"its library " + path + L" could not be loaded"};
    m_libraries.emplace(path, library);
    return library;
}

} // namespace host
