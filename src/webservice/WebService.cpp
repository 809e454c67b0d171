#include "webservice/WebService.h"

#include "platform/LateBound.h"
#include "platform/Procedure.h"
#include "platform/XmlDocument.h"
#include "support/Conversions.h"
#include "webservice/Exchange.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr const wchar_t* kSiblingLogin = L"CorvaneMSOfficeExcel.CLogin";
constexpr const wchar_t* kFormType = L"application/x-www-form-urlencoded";
constexpr const wchar_t* kNamespaces =
    L"xmlns:z='#RowsetSchema' xmlns:prj='urn:halvex-com:krx:project:1' "
    L"xmlns:ms='urn:schemas-microsoft-com:xslt' xmlns:fg='urn:halvex-com:krx:filtergroups:1'";
constexpr long kFailedDependency = 424;

bool m_bAccessLogged = false;

// The local time as the user's locale writes it, or, where that takes letters that a header cannot carry, as the
// neutral one does.
std::wstring Now()
{
    SYSTEMTIME local{};
    ::GetLocalTime(&local);
    DATE date = 0;
    ::SystemTimeToVariantTime(&local, &date);
    const Variant now = Variant::OfDate(date);
    const std::wstring text = now.Text();
    return std::ranges::all_of(text, [](wchar_t letter) { return letter < 0x80; }) ? text : now.As(VT_BSTR).Text();
}

LateBound SiblingLogin()
{
    LateBound login;
    Ignoring([&] { login = LateBound::Create(kSiblingLogin); });
    return login;
}

} // namespace

bool AccessLogPending()
{
    if (m_bAccessLogged) return false;
    const LateBound login = SiblingLogin();
    return !login || !ToBooleanSafe(login.Text(L"IsLoggedIn"));
}

void SetAccessLogged(bool bValue)
{
    m_bAccessLogged = bValue;
    if (const LateBound login = SiblingLogin()) login.Put(L"IsLoggedIn", bValue);
}

void UpdateUserLog(const std::wstring& sServer, const std::wstring& sWebService)
{
    const ProcedureScope scope{L"WebService.UpdateUserLog"};
    if (!AccessLogPending()) return;
    const std::wstring url = Endpoint(sServer, sWebService) + L"?" + RequestQuery(Operations::kUpdateUserAccessLog, {});
    std::optional<HttpRequest> request{std::in_place};
    OpenRequest(kAccessLogCall, [&] { request->Open(L"POST", url); });
    const XmlDocument empty;
    const auto failure = Catch([&] {
        Exchange(*request, kAccessLogCall, Operations::kUpdateUserAccessLog, sServer, RequestLimit(), [&] {
            if (!Catch([&] { request->Send(empty); })) return;
            // A component may refuse the document of another version, and forget with it what was opened. Without a
            // document the request is the same.
            request.emplace().Open(L"POST", url);
            request->Send();
        });
    });
    if (request->Status() == kFailedDependency) SetAccessLogged(false);
    if (failure) throw *failure;
    SetAccessLogged(true);
}

WebAnswer ExecuteASPWebService(const std::wstring& sServer, const std::wstring& sWebService,
                               const Operation& sOperation, const Parameters& vParams)
{
    const ProcedureScope scope{L"WebService.ExecuteASPWebService"};
    UpdateUserLog(sServer, sWebService);

    const bool isPost = sOperation.method == Method::Post;
    const std::wstring endpoint = Endpoint(sServer, sWebService);
    const std::wstring query = RequestQuery(sOperation.name, vParams);
    HttpRequest request;
    OpenRequest(kOperationCall, [&] {
        request.Open(isPost ? L"POST" : L"GET", isPost ? endpoint : endpoint + L"?" + query);
        if (!isPost) return;
        request.SetHeader(L"lastCached", Now());
        request.SetHeader(L"Content-Type", kFormType);
    });
    WebAnswer answer;
    answer.text = Exchange(request, kOperationCall, sOperation.name, sServer, RequestLimit(),
                           [&] { isPost ? request.Send(query) : request.Send(); });
    if (sOperation.answer == AnswerForm::Xml)
        static_cast<void>(answer.document.emplace().Load(answer.text, kNamespaces));
    return answer;
}

XmlDocument QueryXml(const std::wstring& server, const Operation& operation, const Parameters& parameters)
{
    return std::move(ExecuteASPWebService(server, kServicePage, operation, parameters).document).value();
}

std::wstring QueryText(const std::wstring& server, const Operation& operation, const Parameters& parameters)
{
    return ExecuteASPWebService(server, kServicePage, operation, parameters).text;
}

XmlNode FirstRow(const XmlDocument& rowset)
{
    XmlNode row = rowset.SelectFirst(L"//z:row");
    if (!row) throw ObjectNotSet(L"WebService.FirstRow");
    return row;
}

} // namespace corvane
