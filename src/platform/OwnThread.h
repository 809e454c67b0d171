// The one thread that each object which other programs reach serves.
#pragma once

#include <windows.h>

#include <type_traits>

namespace corvane
{

// Makes the calling thread the one that all objects serve, until its last claim goes.
class ThreadClaim
{
public:
    ThreadClaim() noexcept;
    ThreadClaim(const ThreadClaim&) = delete;
    ThreadClaim& operator=(const ThreadClaim&) = delete;
    ~ThreadClaim();
};

// The part of an object that knows its thread: the one with a claim or, while there is none, the one that made the
// object. Nothing of the library is locked; from other threads an object is only kept, asked for interfaces and let go.
class OwnThread
{
public:
    [[nodiscard]] bool IsCalling() const noexcept;

    // Runs body, which throws nothing, and returns its result, or success where it gives none. On any other thread body
    // does not run: the caller is told so, by RPC_E_WRONG_THREAD and the error information of COM.
    template<class Body>
    [[nodiscard]] HRESULT Serve(Body&& body) const noexcept
    {
        if (!IsCalling()) return Refuse();
        if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    }

private:
    [[nodiscard]] static HRESULT Refuse() noexcept;

    DWORD m_maker = ::GetCurrentThreadId();
};

} // namespace corvane
