// A save of a bound document from the press of the command to the dialog's end.
#include "AddInUnderTest.h"
#include "Benchmarks.h"
#include "Measure.h"
#include "objects/Application.h"
#include "objects/DocumentObject.h"
#include "platform/MessageLoop.h"
#include "resources/resource.h"
#include "shared/DocumentProperties.h"
#include "shared/HostDocument.h"

#include <commctrl.h>

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
        if (!::IsWindowVisible(window) || !::IsWindowEnabled(window)) return TRUE;
        const HWND button = ::GetDlgItem(window, cmdSave);
        if (button == nullptr || !::IsWindowEnabled(button)) return TRUE;
        ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(cmdSave, BN_CLICKED), reinterpret_cast<LPARAM>(button));
        return FALSE;
    }

    UINT_PTR m_timer;
};

// Shows a button and ends it: with it come the system's theme and fonts, which every host has loaded.
void LoadTheme()
{
    const HWND window =
        ::CreateWindowW(WC_BUTTONW, L"Host", WS_POPUP | WS_VISIBLE, 0, 0, 100, 40, nullptr, nullptr, nullptr, nullptr);
    ::UpdateWindow(window);
    ::DestroyWindow(window);
    corvane::PumpPending();
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
    const corvane::HostDocument document{corvane::LateBound{corvane::ComPtr<IDispatch>{&addIn.Host().Application()}}};
    corvane::SetBindingProperties(document, binding);
    presentation.SaveAs(words[2], kPptx);
    WarmUp();
    LoadTheme();
    const InstantUser user;
    const Stopwatch watch;
    addIn.Press(L"DelivAct");
    Tell("time", watch.Milliseconds());
}

} // namespace bench
