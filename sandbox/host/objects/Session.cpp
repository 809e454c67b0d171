#include "objects/Session.h"

#include <algorithm>

#include "automation/Text.h"
#include "objects/Application.h"
#include "objects/ComAddIn.h"
#include "objects/CommandBars.h"
#include "objects/DocumentObject.h"

namespace host
{
namespace
{

// Dispatch ids of PowerPoint's EApplication.
constexpr DISPID kPresentationClose = 2004;
constexpr DISPID kWindowActivate = 2009;
constexpr DISPID kPresentationBeforeSave = 2018;
constexpr DISPID kPresentationCloseFinal = 2031;
constexpr int kCloseFinalVersion = 14;

void FireWith(ApplicationObject& application, DISPID event, IDispatch* first)
{
    const Value presentation{first};
    VARIANT arguments[] = {presentation.Get()};
    application.Events().Fire(event, arguments);
}

bool SameText(const std::wstring& a, const std::wstring& b) { return ::lstrcmpiW(a.c_str(), b.c_str()) == 0; }

} // namespace

Session::Session(Options options)
    : m_options{std::move(options)}, m_application{MakeObject<ApplicationObject>(*this)},
      m_commandBars{MakeObject<CommandBarsObject>()}
{
    m_commandBars->MenuBar().FillMenuBar();
}

Session::~Session() = default;

DocumentObject* Session::Active() const { return m_documents.empty() ? nullptr : m_documents.front().Get(); }

DocumentObject& Session::New()
{
    const std::wstring name = L"Presentation" + std::to_wstring(++m_lastNumber);
    std::string author = m_options.Setting("author");
    if (author.empty()) author = "Stand-in User";
    Show(MakeObject<DocumentObject>(*this, Document::New(name, author)));
    return *Active();
}

DocumentObject& Session::Open(const std::wstring& path, bool readOnly)
{
    const std::wstring full = FullPath(path);
    for (const auto& open : m_documents)
        if (SameText(open->File().FullName(), full)) {
            Activate(*open.Get());
            return *Active();
        }
    Show(MakeObject<DocumentObject>(*this, Document::Open(full, readOnly)));
    return *Active();
}

void Session::Show(ComPtr<DocumentObject> presentation)
{
    m_documents.insert(m_documents.begin(), std::move(presentation));
    FireActivate();
}

void Session::Activate(DocumentObject& presentation)
{
    const auto found = std::ranges::find(m_documents, &presentation, &ComPtr<DocumentObject>::Get);
    if (found == m_documents.end()) return;
    std::rotate(m_documents.begin(), found, found + 1);
    FireActivate();
}

void Session::FireActivate()
{
    Changed();
    const Value presentation{Active()};
    const Value documentWindow{MakeObject<DocumentWindowObject>(Active()).Get()};
    VARIANT arguments[] = {presentation.Get(), documentWindow.Get()};
    m_application->Events().Fire(kWindowActivate, arguments);
}

void Session::Close(DocumentObject& presentation)
{
    const ComPtr<DocumentObject> closing{&presentation};
    const bool wasActive = Active() == &presentation;
    FireWith(*m_application.Get(), kPresentationClose, closing.Get());
    if (m_options.MajorVersion() >= kCloseFinalVersion)
        FireWith(*m_application.Get(), kPresentationCloseFinal, closing.Get());
    std::erase_if(m_documents, [&](const auto& open) { return open.Get() == closing.Get(); });
    closing->MarkClosed();
    Changed();
    if (wasActive && Active()) FireActivate();
}

bool Session::MayBeSaved(DocumentObject& presentation)
{
    VARIANT_BOOL cancel = VARIANT_FALSE;
    const Value subject{&presentation};
    VARIANT byReference{};
    byReference.vt = VT_BOOL | VT_BYREF;
    byReference.pboolVal = &cancel;
    VARIANT arguments[] = {subject.Get(), byReference};
    m_application->Events().Fire(kPresentationBeforeSave, arguments);
    return cancel == VARIANT_FALSE;
}

void Session::RunMacro(const std::wstring& name)
{
    const std::size_t mark = name.find(L'!');
    std::wstring macro = name;
    if (mark != std::wstring::npos) {
        const std::wstring owner = name.substr(0, mark);
        if (std::ranges::none_of(m_documents, [&](const auto& p) { return SameText(p->File().Name(), owner); }))
            throw AutomationError{kInvalidRequest, L"Application.Run : " + owner + L" is not open."};
        macro = name.substr(mark + 1);
    }
    const std::string answer = m_options.Setting("macro." + Narrow(macro));
    if (answer.empty())
        throw AutomationError{kInvalidRequest, L"Application.Run : Invalid request. Sub or function not defined."};
    m_macrosRun.push_back(macro);
    if (answer != "ok") throw AutomationError{kInvalidRequest, L"Application.Run : The macro failed."};
}

void Session::AddAddIn(ComPtr<ComAddInObject> addIn) { m_addIns.push_back(std::move(addIn)); }

void Session::Changed()
{
    if (onChanged) onChanged();
}

void Session::Release()
{
    m_documents.clear();
    m_addIns.clear();
    m_commandBars.Reset();
    m_application.Reset();
}

} // namespace host
