#include "shared/SaveResult.h"

#include "support/ServerRules.h"

#include <utility>

namespace corvane
{
namespace
{
SaveResult& g_last = *new SaveResult; // outlives every object that may ask
} // namespace

void SaveResult::Begin()
{
    *this = {};
    m_running = true;
}

void SaveResult::Save(SavedVersion version)
{
    m_outcome = SaveOutcome::Saved;
    m_version = std::move(version);
    m_version.server = WithoutCredentials(m_version.server);
    m_errorNumber = 0;
    m_errorDescription.clear();
}

void SaveResult::Refuse(const std::wstring& why, std::int32_t number) { Told(SaveOutcome::Refused, number, why); }

void SaveResult::Fail(const Error& error) { Told(SaveOutcome::Failed, error.Number(), error.Description()); }

void SaveResult::Told(SaveOutcome outcome, std::int32_t number, const std::wstring& description)
{
    if (m_outcome == SaveOutcome::Saved) return;
    m_outcome = outcome;
    m_errorNumber = number;
    m_errorDescription = WithoutCredentialsInText(description);
}

void SaveResult::End() noexcept
{
    m_running = false;
    if (m_outcome == SaveOutcome::None) m_outcome = SaveOutcome::Cancelled;
}

SaveResult& LastSave() noexcept { return g_last; }

} // namespace corvane
