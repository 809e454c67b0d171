// The window that shows progress while a save dialog is being opened.
#pragma once

#include "forms/Form.h"
#include "shared/HostDocument.h"
#include "shared/Target.h"

#include <array>
#include <functional>
#include <string>

namespace corvane
{

class frmBusy;

// The save procedures by lMethodType: 0 deliverable or activity, 1 gate document, 2 related document. An empty one runs
// nothing.
using SaveProcedures = std::array<std::function<void(frmBusy&)>, 3>;

// Modal "Please Wait" window in whose activation the chosen save procedure runs.
class frmBusy final : public Form
{
public:
    explicit frmBusy(SaveProcedures procedures);

    // What to run and with what; set before showing. Object references are dropped when the work ends.
    std::int32_t lMethodType = 0;
    bool bWorking = false; // true once the work has started; set beforehand it keeps the window idle
    std::wstring sServer;
    Target target;
    std::int32_t& lProjectID = target.projectId;
    std::int32_t& lDeliverableID = target.deliverableId;
    std::int32_t& lActivityID = target.activityId;
    std::int32_t& lRelatedDocID = target.relatedFileId;
    std::int32_t& lGateDocID = target.gateDocumentId;
    HostDocument oDocument; // the one that the command was given for

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const override { return {}; }
    void Form_Activate() override;
    void Timer() override;
    [[nodiscard]] bool IsPassing() const noexcept override { return true; }

    void RunProcedure();

    SaveProcedures m_procedures;
    int m_progress = 0;
};

} // namespace corvane
