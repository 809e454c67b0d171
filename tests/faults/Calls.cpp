// Calls the server as lines of the standard input ask, fields divided by tabs:
//   OPERATION SERVER TIMEOUT-MS PARAMETER...
// OPERATION is a name of the protocol, or "upload" with a path and a name for parameters. Each call is answered by a
// line of milliseconds, KiB of private memory afterwards, error number (0 for none), source, description and
// the answer. With the argument "own" the stand-in host's HTTP component sends.
#include "automation/OfferedClass.h"
#include "objects/HttpRequestObject.h"
#include "platform/Owners.h"
#include "platform/Procedure.h"
#include "platform/Utf8.h"
#include "webservice/Exchange.h"
#include "webservice/Transfer.h"
#include "webservice/WebService.h"

#include <cstdio>
#include <iostream>
#include <optional>
#include <psapi.h>
#include <sstream>

using namespace corvane;
using namespace corvane::Operations;

namespace
{

constexpr const Operation* kOperations[] = {
    &kGetUser,           &kGetUserId,           &kIsProjectTeamMember,   &kIsAutoSetPublishCheckbox,
    &kMaxFileUploadSize, &kGetClasses,          &kGetProjectDeliverable, &kGetProjectActivity,
    &kGetUserRoles,      &kUploadDeliverable,   &kCheckUserManageAccess, &kCheckWorkflowPermission,
    &kUploadActivity,    &kUserCanUpdate,       &kGetProjectTeamMembers, &kGetProjectGateDocument,
    &kGetProject,        &kGetActivityVersions, &kGetProjectRelatedFile, &kGetRelatedFileDate,
    &kGetGroups,         &kCreateRelatedFile,   &kUploadRelatedFile,     &kUploadGateDocument,
    &kAssignmentTree,    &kRelatedFileTree,     &kGateDocumentTree,      &kConfigValues};

// A text as one line of ASCII.
std::string Line(const std::wstring& text)
{
    std::ostringstream line;
    for (const wchar_t c : text.substr(0, 400))
        if (c >= L' ' && c < 127 && c != L'\\')
            line << static_cast<char>(c);
        else
            line << "\\u" << std::hex << static_cast<unsigned>(c) << std::dec << ';';
    return line.str();
}

std::wstring CallOperation(const std::wstring& server, const Operation& operation, const Parameters& parameters)
{
    SetAccessLogged(true);
    const WebAnswer answer = ExecuteASPWebService(server, kServicePage, operation, parameters);
    if (!answer.document) return answer.text;
    return std::to_wstring(answer.document->Select(L"//*").size()) + L" elements";
}

std::wstring Call(const std::wstring& name, const std::wstring& server, const Parameters& parameters)
{
    if (name == L"upload") {
        SetAccessLogged(true);
        ExecuteASPWSUploadFile(server, ParameterText(parameters.at(0)), ParameterText(parameters.at(1)));
        return L"";
    }
    if (name == kUpdateUserAccessLog) {
        SetAccessLogged(false);
        UpdateUserLog(server, kServicePage);
        return AccessLogPending() ? L"still pending" : L"";
    }
    if (name == kSetIcon)
        return static_cast<void>(ExecuteASPWebserviceBinary(server, kServicePage, name, parameters)), L"";
    for (const Operation* operation : kOperations)
        if (name == operation->name) return CallOperation(server, *operation, parameters);
    throw Error{1, L"Calls", L"no such operation"};
}

void Answer(const std::string& line)
{
    std::istringstream fields{line};
    std::string field;
    Parameters all;
    while (std::getline(fields, field, '\t'))
        all.emplace_back(FromUtf8(field));
    SetRequestTimeout(std::chrono::milliseconds{std::stoi(ParameterText(all.at(2)))});
    std::wstring answer;
    const ULONGLONG start = ::GetTickCount64();
    const auto failure = Catch([&] {
        answer = Call(ParameterText(all[0]), ParameterText(all[1]), Parameters{all.begin() + 3, all.end()});
    });
    const ULONGLONG took = ::GetTickCount64() - start;
    PROCESS_MEMORY_COUNTERS memory{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof memory);
    const Error error = failure.value_or(Error{0, L"", L""});
    std::cout << took << '\t' << memory.PagefileUsage / 1024 << '\t' << error.Number() << '\t' << Line(error.Source())
              << '\t' << Line(error.Description()) << '\t' << Line(answer) << '\n'
              << std::flush;
}

} // namespace

int main(int count, char**)
{
    ::CoInitialize(nullptr);
    std::optional<host::ClassObject> own;
    if (count > 1)
        own.emplace(host::kXmlHttpClass, [](REFIID id, void** object) {
            return host::MakeObject<host::HttpRequestObject>()->QueryInterface(id, object);
        });
    for (std::string line; std::getline(std::cin, line);)
        Answer(line.substr(0, line.find('\r')));
    own.reset();
    ::CoUninitialize();
}
