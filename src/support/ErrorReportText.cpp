#include "platform/Error.h"
#include "support/ErrorReport.h"

namespace corvane
{

std::wstring ErrorReportText(const Error& error)
{
    return L"ERROR\r\nNumber: " + std::to_wstring(error.Number()) + L"\r\nDescription: " + error.Description() +
           L"\r\nSource: " + error.Source();
}

} // namespace corvane
