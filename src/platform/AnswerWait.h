// The wait for an answer that a key of the user may end.
#pragma once

#include <utility>

namespace corvane
{

// Stands for a wait for as long as it lives. Where a command runs within the wait of another, the inner one counts.
class AnswerWait
{
public:
    AnswerWait() noexcept : m_outer{std::exchange(s_innermost, this)} {}
    AnswerWait(const AnswerWait&) = delete;
    AnswerWait& operator=(const AnswerWait&) = delete;
    ~AnswerWait() { s_innermost = m_outer; }

    [[nodiscard]] bool IsEnded() const noexcept { return m_isEnded; }

    // Ends the innermost wait of all; does nothing where there is none.
    static void End() noexcept
    {
        if (s_innermost != nullptr) s_innermost->m_isEnded = true;
    }

private:
    static inline AnswerWait* s_innermost = nullptr; // of the host's own thread, the only one that waits

    AnswerWait* m_outer;
    bool m_isEnded = false;
};

} // namespace corvane
