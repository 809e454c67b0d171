#include "automation/Macros.h"

#include <activscp.h>

#include "automation/AutomationObject.h"
#include "automation/ClassLoader.h"

namespace host
{
namespace
{

constexpr wchar_t kEngine[] = L"VBScript";
constexpr wchar_t kApplication[] = L"Application";
constexpr wchar_t kCreator[] = L"ClassesOfTheUser";
// Wine's own function does not see classes that are registered for the user alone.
constexpr wchar_t kPrelude[] =
    L"Function CreateObject(id) : Set CreateObject = ClassesOfTheUser.Create(id) : End Function";

// Makes objects of classes for a script.
class Creator final : public AutomationObject<IDispatch>
{
public:
    explicit Creator(ClassLoader& classes) : AutomationObject{L"Creator", kMembers}, m_classes{classes} {}

private:
    static const Member kMembers[1];

    Variant Create(const Arguments& arguments)
    {
        ComPtr<IDispatch> object;
        ThrowIfFailed(m_classes.Create(ClassLoader::ClassOf(arguments.At(0).Text())).As(&object),
                      L"it has no IDispatch");
        return object;
    }

    ClassLoader& m_classes;
};

const Member Creator::kMembers[] = {{1, L"Create", kMethod, Answer<&Creator::Create>}};

// What the engine asks of the program that it runs in. Keeps what a script raised.
class Site final : public corvane::ComObject<Site, IActiveScriptSite, IActiveScriptSiteWindow>
{
public:
    Site(IDispatch& application, ClassLoader& classes, HWND window)
        : m_application{&application}, m_creator{MakeObject<Creator>(classes)}, m_window{window}
    {}

    [[nodiscard]] const std::wstring& Raised() const { return m_raised; }

    STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD wanted, IUnknown** item, ITypeInfo** info) override
    {
        if (info != nullptr) *info = nullptr;
        if ((wanted & SCRIPTINFO_IUNKNOWN) != 0)
            *item = ComPtr<IDispatch>{name == std::wstring_view{kCreator} ? m_creator : m_application}.Detach();
        return S_OK;
    }
    STDMETHODIMP OnScriptError(IActiveScriptError* error) override
    {
        EXCEPINFO what{};
        error->GetExceptionInfo(&what);
        DWORD context = 0;
        ULONG line = 0;
        LONG place = 0;
        error->GetSourcePosition(&context, &line, &place);
        m_raised = L"line " + std::to_wstring(line + 1) + L": " +
                   std::wstring{what.bstrDescription != nullptr ? what.bstrDescription : L"an error"};
        for (BSTR text : {what.bstrSource, what.bstrDescription, what.bstrHelpFile})
            ::SysFreeString(text);
        return S_OK;
    }
    STDMETHODIMP GetWindow(HWND* window) override
    {
        *window = m_window;
        return S_OK;
    }
    STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
    STDMETHODIMP OnEnterScript() override { return S_OK; }
    STDMETHODIMP OnLeaveScript() override { return S_OK; }
    STDMETHODIMP EnableModeless(WINBOOL) override { return S_OK; }

private:
    ComPtr<IDispatch> m_application;
    ComPtr<IDispatch> m_creator;
    HWND m_window;
    std::wstring m_raised;
};

// The engine for as long as a macro runs.
class Engine
{
public:
    explicit Engine(ComPtr<Site> site) : m_site{std::move(site)}
    {
        CLSID id{};
        Ensure(::CLSIDFromProgID(kEngine, &id));
        Ensure(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(m_script.GetAddressOf())));
        Ensure(m_script->SetScriptSite(m_site.Get()));
        Ensure(m_script.As(&m_parser));
        Ensure(m_parser->InitNew());
        for (const wchar_t* name : {kApplication, kCreator})
            Ensure(m_script->AddNamedItem(name, SCRIPTITEM_ISVISIBLE));
        Ensure(m_script->SetScriptState(SCRIPTSTATE_CONNECTED));
    }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    ~Engine()
    {
        if (m_script != nullptr) m_script->Close();
    }

    void Run(const std::wstring& text) const
    {
        Ensure(m_parser->ParseScriptText(text.c_str(), nullptr, nullptr, nullptr, 0, 0, 0, nullptr, nullptr));
    }

private:
    void Ensure(HRESULT result) const
    {
        if (FAILED(result))
            throw Error{result, {}, m_site->Raised().empty() ? std::wstring{L"the engine failed"} : m_site->Raised()};
    }

    ComPtr<Site> m_site;
    ComPtr<IActiveScript> m_script;
    ComPtr<IActiveScriptParse> m_parser;
};

} // namespace

void RunMacro(const std::wstring& script, const std::wstring& procedure, IDispatch& application, ClassLoader& classes,
              HWND window)
{
    const Engine engine{MakeObject<Site>(application, classes, window)};
    engine.Run(kPrelude);
    engine.Run(script);
    engine.Run(procedure);
}

} // namespace host
