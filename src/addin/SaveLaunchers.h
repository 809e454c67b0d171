// The procedures that the busy window runs: they open the save dialog of a command.
#pragma once

#include "selection/frmBusy.h"

namespace corvane
{

// One procedure for each save dialog, by lMethodType. Each refreshes the customer's words once and the captions with
// them, asks the server whether the publish box starts ticked, and shows the dialog modally.
[[nodiscard]] SaveProcedures MakeSaveProcedures();

} // namespace corvane
