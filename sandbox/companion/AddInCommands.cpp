#include "companion/AddInCommands.h"

#include "platform/ComObject.h"
#include "platform/HResult.h"
#include "platform/Registry.h"

namespace corvane::companion
{
namespace
{

constexpr wchar_t kControllerProgId[] = L"CorvaneMSOfficePowerPoint.CController";
constexpr wchar_t kRibbonId[] = L"Microsoft.PowerPoint.Presentation";
constexpr IID kRibbonExtensibility{0x000C0396, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr wchar_t kClasses[] = L"Software\\Classes\\";

CLSID ClassOf(const std::wstring& progId)
{
    CLSID id{};
    const auto own = Registry::ReadText(kClasses + progId + L"\\CLSID", {});
    Check(own ? ::CLSIDFromString(own->c_str(), &id) : ::CLSIDFromProgID(progId.c_str(), &id), progId);
    return id;
}

// From the library that the host has loaded: not every system finds a class that is registered for the user alone.
ComPtr<IClassFactory> LoadedFactory(REFCLSID id, const std::wstring& progId)
{
    const std::wstring key = kClasses + (L"CLSID\\" + GuidText(id)) + L"\\InprocServer32";
    const HMODULE library = ::GetModuleHandleW(Registry::ReadText(key, {}).value_or(L"").c_str());
    const auto factoryOf = reinterpret_cast<HRESULT(STDMETHODCALLTYPE*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(::GetProcAddress(library, "DllGetClassObject")));
    if (factoryOf == nullptr) throw Error{REGDB_E_CLASSNOTREG, progId, L"the class is not registered"};
    ComPtr<IClassFactory> factory;
    Check(factoryOf(id, IID_PPV_ARGS(factory.GetAddressOf())), progId);
    return factory;
}

// An object of one of the add-in's public classes, as a macro makes one.
ComPtr<IUnknown> Create(const std::wstring& progId)
{
    const CLSID id = ClassOf(progId);
    ComPtr<IUnknown> object;
    if (FAILED(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf()))))
        Check(LoadedFactory(id, progId)->CreateInstance(nullptr, IID_PPV_ARGS(object.GetAddressOf())), progId);
    return object;
}

LateBound Interface(const std::wstring& progId, REFIID id)
{
    ComPtr<IDispatch> object;
    Check(Create(progId)->QueryInterface(id, reinterpret_cast<void**>(object.GetAddressOf())), progId);
    return LateBound{std::move(object)};
}

// The control that a callback is about, as the ribbon hands it over: it has an id.
class PressedControl final : public ComObject<PressedControl, IDispatch>
{
public:
    explicit PressedControl(std::wstring id) : m_id{std::move(id)} {}

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override
    {
        *ids = ::lstrcmpiW(*names, L"Id") == 0 ? kId : DISPID_UNKNOWN;
        return *ids == kId ? S_OK : DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override
    {
        if (member != kId || result == nullptr) return DISP_E_MEMBERNOTFOUND;
        *result = Variant{m_id}.Detach();
        return S_OK;
    }

private:
    static constexpr DISPID kId = 1;

    std::wstring m_id;
};

} // namespace

std::wstring RibbonXml()
{
    return Interface(kAddInProgId, kRibbonExtensibility).Call(L"GetCustomUI", kRibbonId).Text();
}

std::wstring CallbackOf(const std::wstring& xml, const std::wstring& id)
{
    const std::size_t at = xml.find(L" id=\"" + id + L"\"");
    if (at == std::wstring::npos) return {};
    const std::size_t start = xml.rfind(L'<', at);
    const std::wstring element = xml.substr(start, xml.find(L'>', at) - start);
    constexpr std::wstring_view kAttribute = L" onAction=\"";
    const std::size_t name = element.find(kAttribute);
    if (name == std::wstring::npos) return {};
    const std::size_t from = name + kAttribute.size();
    return element.substr(from, element.find(L'"', from) - from);
}

void CallBack(const std::wstring& callback, const std::wstring& id)
{
    const ComPtr<IDispatch> control = MakeObject<PressedControl>(id);
    Interface(kAddInProgId, IID_IDispatch).Call(callback.c_str(), control);
}

void CallController(const std::wstring& method) { Interface(kControllerProgId, IID_IDispatch).Call(method.c_str()); }

} // namespace corvane::companion
