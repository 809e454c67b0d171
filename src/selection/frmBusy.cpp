#include "selection/frmBusy.h"

#include "platform/Procedure.h"
#include "resources/resource.h"

namespace corvane
{
namespace
{
constexpr UINT kTickMilliseconds = 100;
constexpr int kFull = 100;
constexpr int kStep = 5;
} // namespace

frmBusy::frmBusy(SaveProcedures procedures) : Form{L"frmBusy", IDD_frmBusy}, m_procedures{std::move(procedures)} {}

void frmBusy::Timer()
{
    m_progress = m_progress < kFull ? m_progress + kStep : 0;
    SetProgress(ProgressBar1, m_progress);
}

void frmBusy::Form_Activate()
{
    StartTimer(kTickMilliseconds);
    if (bWorking) return;
    bWorking = true;
    Reporting([this] { RunProcedure(); });
    oDocument = {};
    Hide();
}

void frmBusy::RunProcedure()
{
    const auto index = static_cast<std::size_t>(lMethodType);
    if (lMethodType < 0 || index >= m_procedures.size() || !m_procedures[index]) return;
    m_procedures[index](*this);
}

} // namespace corvane
