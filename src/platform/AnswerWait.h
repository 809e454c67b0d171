// The wait for an answer, which a key of the user may end, whoever shows it hears of, and other work may fill.
#pragma once

#include "platform/Procedure.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <utility>

namespace corvane
{

// How far a wait has come.
struct WaitProgress
{
    std::chrono::seconds gone{0};
    std::size_t sent = 0; // bytes of the request's body
};

// Stands for a wait for as long as it lives. Where a command runs within the wait of another, the inner one counts.
class AnswerWait
{
public:
    // Hears of a wait each second, and once, with null, when it is over. One hears of all waits.
    using Watch = void (*)(const WaitProgress* progress) noexcept;
    static void SetWatch(Watch watch) noexcept { s_watch = watch; }

    AnswerWait() noexcept : m_outer{std::exchange(s_innermost, this)} {}
    AnswerWait(const AnswerWait&) = delete;
    AnswerWait& operator=(const AnswerWait&) = delete;
    ~AnswerWait()
    {
        s_innermost = m_outer;
        if (m_wasTold && s_watch != nullptr) s_watch(nullptr);
    }

    [[nodiscard]] bool IsEnded() const noexcept { return m_isEnded; }

    // Tells of the wait, unless another runs within it.
    void Tell(const WaitProgress& progress) noexcept
    {
        if (s_innermost != this || s_watch == nullptr) return;
        m_wasTold = true;
        s_watch(&progress);
    }

    // Ends the innermost wait of all; does nothing where there is none.
    static void End() noexcept
    {
        if (s_innermost != nullptr) s_innermost->m_isEnded = true;
    }

private:
    static inline AnswerWait* s_innermost = nullptr; // of the host's own thread, the only one that waits
    static inline Watch s_watch = nullptr;

    AnswerWait* m_outer;
    bool m_isEnded = false;
    bool m_wasTold = false;
};

// Work that the next wait for an answer begins with, while the server is busy. Nobody does it where no wait comes
// before this goes, or where it fails: who needs it done does it then.
class Meanwhile
{
public:
    explicit Meanwhile(std::function<void()> work) : m_work{std::move(work)} { s_next = this; }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;
    ~Meanwhile()
    {
        if (s_next == this) s_next = nullptr;
    }

    static void Do() noexcept
    {
        if (const Meanwhile* const next = std::exchange(s_next, nullptr)) Ignoring(next->m_work);
    }

private:
    static inline const Meanwhile* s_next = nullptr;

    std::function<void()> m_work;
};

} // namespace corvane
