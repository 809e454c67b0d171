// The operations of the web service by their names.
#pragma once

#include "core/Answers.h"
#include "core/Fields.h"
#include "core/Service.h"

#include <map>
#include <string_view>

namespace server
{

struct Operation
{
    int parameterCount = 0;
    Answer (*run)(Service&, const Parameters&) = nullptr;
};

// Keyed by the exact name: letter case is part of it.
using OperationTable = std::map<std::string_view, Operation>;

void AddUserOperations(OperationTable& table);
void AddTargetOperations(OperationTable& table);
void AddTreeOperations(OperationTable& table);
void AddRecordingOperations(OperationTable& table);

// Carries out the operation that the fields name. A refused request, an unknown operation and a missing parameter come
// back as an error document.
[[nodiscard]] Answer RunOperation(Service& service, const Fields& fields);

} // namespace server
