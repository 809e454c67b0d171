#include "core/Operations.h"

namespace server
{

namespace
{

const OperationTable& Table()
{
    static const OperationTable kTable = [] {
        OperationTable table;
        AddUserOperations(table);
        AddTargetOperations(table);
        AddTreeOperations(table);
        AddRecordingOperations(table);
        return table;
    }();
    return kTable;
}

std::string_view Value(const Fields& fields, std::string_view name)
{
    const auto found = fields.find(name);
    return found == fields.end() ? std::string_view{} : std::string_view{found->second};
}

Answer Run(Service& service, const Fields& fields)
{
    const std::string name{Value(fields, "Op")};
    const auto protocol = Value(fields, "P1");
    if (protocol != "v6")
        throw ServiceError{ErrorNumber::OtherProtocol, "offi",
                           "Protocol '" + std::string{protocol} + "' is not supported."};
    const auto found = Table().find(name);
    if (found == Table().end())
        throw ServiceError{ErrorNumber::InvalidRequest, "offi", "Unknown operation '" + name + "'."};
    const Parameters parameters{fields, name};
    for (int position = 1; position <= found->second.parameterCount; ++position)
        (void)parameters.Text(position);
    return found->second.run(service, parameters);
}

} // namespace

Answer RunOperation(Service& service, const Fields& fields)
{
    try {
        return Run(service, fields);
    } catch (const ServiceError& error) {
        return ErrorAnswer(error);
    }
}

} // namespace server
