#include "platform/LateBound.h"

#include "platform/Error.h"
#include "platform/HResult.h"

#include <algorithm>
#include <vector>

namespace corvane
{
namespace
{

// Owns the texts of an EXCEPINFO and turns them into an Error.
class ExceptionInfo
{
public:
    ExceptionInfo() = default;
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo()
    {
        for (const BSTR text : {m_info.bstrSource, m_info.bstrDescription, m_info.bstrHelpFile})
            ::SysFreeString(text);
    }

    [[nodiscard]] EXCEPINFO* Put() noexcept { return &m_info; }

    [[noreturn]] void Throw(std::wstring_view member)
    {
        if (m_info.pfnDeferredFillIn != nullptr) m_info.pfnDeferredFillIn(&m_info);
        const HRESULT result = m_info.scode != 0 ? m_info.scode : static_cast<HRESULT>(0x800A0000U | m_info.wCode);
        std::wstring source{ViewOf(m_info.bstrSource)};
        std::wstring description{ViewOf(m_info.bstrDescription)};
        if (source.empty()) source = member;
        if (description.empty()) description = MessageOf(result);
        throw Error{ErrorNumberOf(result), std::move(source), std::move(description)};
    }

private:
    EXCEPINFO m_info{};
};

} // namespace

LateBound LateBound::Create(const wchar_t* programmaticId)
{
    constexpr const wchar_t* kSource = L"LateBound.Create";
    CLSID classId{};
    Check(::CLSIDFromProgID(programmaticId, &classId), kSource);
    ComPtr<IDispatch> object;
    Check(::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                             IID_PPV_ARGS(object.GetAddressOf())),
          kSource);
    return LateBound{std::move(object)};
}

LateBound LateBound::Running(const wchar_t* programmaticId)
{
    constexpr const wchar_t* kSource = L"LateBound.Running";
    CLSID classId{};
    Check(::CLSIDFromProgID(programmaticId, &classId), kSource);
    ComPtr<IUnknown> running;
    Check(::GetActiveObject(classId, nullptr, running.GetAddressOf()), kSource);
    ComPtr<IDispatch> object;
    Check(running->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())), kSource);
    return LateBound{std::move(object)};
}

std::int32_t LateBound::Number(const wchar_t* name) const
{
    const Variant value = Property(name);
    Variant number;
    Check(::VariantChangeType(number.Put(), const_cast<VARIANT*>(&value.Get()), 0, VT_I4), name);
    return number.Get().lVal;
}

void LateBound::Put(const wchar_t* name, Variant value) const { Invoke(name, DISPATCH_PROPERTYPUT, {&value, 1}); }

void LateBound::SavePersistedCopy(const std::wstring& path) const
{
    constexpr const wchar_t* kSource = L"SavePersistedCopy";
    constexpr std::int32_t kNotSupported = 438;
    ComPtr<IPersistFile> file;
    if (m_object == nullptr || FAILED(m_object->QueryInterface(IID_IPersistFile, &file)))
        throw Error{kNotSupported, kSource, L"Object doesn't support this property or method"};
    Check(file->Save(path.c_str(), FALSE), kSource);
}

Variant LateBound::Invoke(const wchar_t* name, int kind, std::span<Variant> arguments) const
{
    if (m_object == nullptr) throw ObjectNotSet(name);
    DISPID member = 0;
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    Check(m_object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member), name);

    // Automation takes the arguments last to first; the values stay owned by the caller.
    std::vector<VARIANT> reversed;
    std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(reversed),
                   [](const Variant& value) { return value.Get(); });
    DISPID putName = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    if (kind == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &putName;
        parameters.cNamedArgs = 1;
    }
    Variant result;
    ExceptionInfo exception;
    const HRESULT outcome =
        m_object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(kind), &parameters,
                         kind == DISPATCH_PROPERTYPUT ? nullptr : result.Put(), exception.Put(), nullptr);
    if (outcome == DISP_E_EXCEPTION) exception.Throw(name);
    Check(outcome, name);
    return result;
}

} // namespace corvane
