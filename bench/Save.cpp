// A save of a bound document from the press of the command to the dialog's end, and its requests alone.
#include "AddInUnderTest.h"
#include "BareRequest.h"
#include "Benchmarks.h"
#include "Measure.h"
#include "objects/Application.h"
#include "objects/DocumentObject.h"
#include "resources/resource.h"
#include "shared/DocumentProperties.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace bench
{
namespace
{

constexpr long kPptx = 24;

// Presses Save in the dialog of this process as soon as it can be pressed, as an instant user would; again while it
// still can, because a dialog that is still loading overhears it.
class InstantUser
{
public:
    InstantUser() : m_timer{::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &Look)} {}
    ~InstantUser() { ::KillTimer(nullptr, m_timer); }
    InstantUser(const InstantUser&) = delete;
    InstantUser& operator=(const InstantUser&) = delete;

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), &PressSave, 0);
    }
    static BOOL CALLBACK PressSave(HWND window, LPARAM)
    {
        const HWND button = ::GetDlgItem(window, cmdSave);
        if (button == nullptr || !::IsWindowVisible(window) || !::IsWindowEnabled(window) || !::IsWindowEnabled(button))
            return TRUE;
        ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(cmdSave, BN_CLICKED), reinterpret_cast<LPARAM>(button));
        return FALSE;
    }

    UINT_PTR m_timer;
};

// Loads what both ways of saving need: the system's XML and HTTP libraries.
void WarmUp() { BareRequest{}.Open(L"GET", L"http://127.0.0.1/"); }

// A request as the script wrote it: a line with method and target, lines of headers, an empty line, the body.
struct Request
{
    explicit Request(const std::filesystem::path& path)
    {
        std::ifstream file{path, std::ios::binary};
        std::string line;
        std::getline(file, line);
        std::istringstream{line} >> method >> target;
        while (std::getline(file, line) && !line.empty())
            headers.emplace_back(line.substr(0, line.find(": ")), line.substr(line.find(": ") + 2));
        body.assign(std::istreambuf_iterator<char>{file}, {});
    }

    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
};

std::wstring Widen(const std::string& text)
{
    std::wstring wide;
    for (const char letter : text)
        wide += static_cast<wchar_t>(static_cast<unsigned char>(letter));
    return wide;
}

void Send(const std::wstring& server, const Request& request)
{
    BareRequest bare;
    bare.Open(Widen(request.method), server + Widen(request.target));
    for (const auto& [name, value] : request.headers)
        bare.SetHeader(Widen(name), Widen(value));
    ByteBlock body{request.body.size()};
    request.body.copy(body.Data(), request.body.size());
    bare.Send(request.body.empty() ? nullptr : body.Array());
}

} // namespace

void SaveBoundDocument(const Words& words)
{
    AddInUnderTest addIn;
    addIn.Load(words[0]);
    host::DocumentObject& presentation = addIn.Host().New();
    corvane::DocumentBinding binding;
    binding.server = words[1];
    binding.projectId = 12;     // "Apollo"
    binding.deliverableId = 45; // "Business case"
    corvane::SetBindingProperties(corvane::LateBound{corvane::ComPtr<IDispatch>{&addIn.Host().Application()}}, binding);
    presentation.SaveAs(words[2], kPptx);
    WarmUp();
    const InstantUser user;
    const Stopwatch watch;
    addIn.Press(L"DelivAct");
    Tell("time", watch.Milliseconds());
}

void ReplayRequests(const Words& words)
{
    std::vector<Request> requests;
    for (int number = 1; std::filesystem::exists(words[1] + L"\\" + std::to_wstring(number)); ++number)
        requests.emplace_back(words[1] + L"\\" + std::to_wstring(number));
    WarmUp();
    const Stopwatch watch;
    for (const Request& request : requests)
        Send(words[0], request);
    Tell("time", watch.Milliseconds());
    Tell("requests", static_cast<double>(requests.size()));
}

} // namespace bench
