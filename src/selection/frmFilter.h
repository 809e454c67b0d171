// The window in which the user narrows the tree by project class and name.
#pragma once

#include "forms/Form.h"
#include "forms/FormList.h"
#include "platform/Error.h"
#include "selection/FilterState.h"

#include <optional>
#include <string>

namespace corvane
{

// One instance serves one target-selection window and keeps the last applied filter between openings.
class frmFilter final : public Form
{
public:
    frmFilter() noexcept;

    // Inputs, set before each opening; the filter properties are outputs as well.
    std::wstring Server;
    std::wstring ProjectSearchName;
    std::int32_t ClassID = 0;
    bool Forced = false;

    // Why the list of classes could not be fetched when the window was loaded; it then holds "[All]" only.
    [[nodiscard]] const std::optional<Error>& LoadFailure() const noexcept { return m_loadFailure; }
    [[nodiscard]] const FilterOutcome& Outcome() const noexcept { return m_outcome; }

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const override;
    void Form_Load() override;

    void btnClearFilter_Click();
    void btnCancel_Click();

    void FillClassList();
    [[nodiscard]] FormList Classes() const noexcept;
    void Apply();

    AppliedFilter m_lastApplied;
    FilterOutcome m_outcome;
    std::optional<Error> m_loadFailure;
};

} // namespace corvane
