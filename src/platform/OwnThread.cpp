#include "platform/OwnThread.h"

#include "platform/Owners.h"

#include <oleauto.h>

#include <atomic>

namespace corvane
{
namespace
{
std::atomic<DWORD> g_claiming{0};
std::atomic<long> g_claims{0};
} // namespace

ThreadClaim::ThreadClaim() noexcept
{
    g_claiming = ::GetCurrentThreadId();
    ++g_claims;
}

ThreadClaim::~ThreadClaim()
{
    if (--g_claims == 0) g_claiming = 0;
}

bool OwnThread::IsCalling() const noexcept
{
    const DWORD claiming = g_claiming;
    return ::GetCurrentThreadId() == (claiming != 0 ? claiming : m_maker);
}

HRESULT OwnThread::Refuse() noexcept
{
    wchar_t source[] = L"CorvaneMSOfficePowerPoint";
    wchar_t description[] = L"Corvane serves only the thread that it was started on. Please call it from there.";
    ComPtr<ICreateErrorInfo> error;
    ComPtr<IErrorInfo> told;
    if (SUCCEEDED(::CreateErrorInfo(error.GetAddressOf())) && SUCCEEDED(error->SetSource(source)) &&
        SUCCEEDED(error->SetDescription(description)) &&
        SUCCEEDED(error->QueryInterface(IID_PPV_ARGS(told.GetAddressOf()))))
        ::SetErrorInfo(0, told.Get());
    return RPC_E_WRONG_THREAD;
}

} // namespace corvane
