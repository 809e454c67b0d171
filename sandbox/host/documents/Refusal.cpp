#include "documents/Refusal.h"

#include <algorithm>
#include <array>

namespace host
{
namespace
{

using Numbers = std::array<HRESULT, 4>; // of each host, in the order of HostKind

constexpr HRESULT Number(unsigned long bits) { return static_cast<HRESULT>(bits); }
constexpr HRESULT ScriptNumber(unsigned long number) { return Number(0x800A0000 | number); }

constexpr Numbers kUsual = {E_FAIL, ScriptNumber(4198), ScriptNumber(1004), E_FAIL};

// In the text, %1 is the subject, %2 the program, %3 what it calls a document. Where the number is 0 it is the usual.
struct RefusalRow
{
    Refusal refusal;
    const wchar_t* text;
    Numbers numbers{};
};

constexpr RefusalRow kRows[] = {
    {Refusal::NoDocument, L"There is no active %3.", {kInvalidRequest, ScriptNumber(4248)}},
    {Refusal::Closed,
     L"The %3 does not exist any more.",
     {kInvalidRequest, ScriptNumber(5825), Number(0x800401A8), Number(0x8004010A)}},
    {Refusal::ReadOnly, L"%2 cannot save %1: it is read-only.", {0, ScriptNumber(5155)}},
    {Refusal::Final, L"The %3 %1 is marked as final: it cannot be edited.", {kInvalidRequest, ScriptNumber(4605)}},
    {Refusal::UnknownFormat,
     L"This host does not save in format %1.",
     {E_INVALIDARG, ScriptNumber(4608), 0, E_INVALIDARG}},
    {Refusal::WrongExtension, L"This extension cannot be used with the selected file type: %1."},
    {Refusal::WrongName, L"This is not a valid file name: %1.", {0, ScriptNumber(5152), 0, STG_E_INVALIDNAME}},
    {Refusal::Locked,
     L"%2 cannot use %1: another program has it open.",
     {0, ScriptNumber(5356), 0, STG_E_SHAREVIOLATION}},
    {Refusal::DiskFull, L"%2 cannot save %1: the disk is full.", {0, 0, 0, STG_E_MEDIUMFULL}},
    {Refusal::Denied, L"%2 cannot use %1: access is denied.", {0, 0, 0, STG_E_ACCESSDENIED}},
    {Refusal::NotFound, L"%2 cannot find %1.", {0, ScriptNumber(5174)}},
    {Refusal::NotSaved, L"An error occurred while %2 was saving the file %1."},
    {Refusal::NotRead, L"%2 cannot read %1."},
    {Refusal::NoMacro, L"The macro %1 cannot be found.", {kInvalidRequest, DISP_E_MEMBERNOTFOUND}},
    {Refusal::MacroFailed, L"The macro %1 failed.", {kInvalidRequest}},
};

constexpr std::pair<int, Refusal> kMeanings[] = {
    {ERROR_SHARING_VIOLATION, Refusal::Locked}, {ERROR_LOCK_VIOLATION, Refusal::Locked},
    {ERROR_DISK_FULL, Refusal::DiskFull},       {ERROR_HANDLE_DISK_FULL, Refusal::DiskFull},
    {ERROR_ACCESS_DENIED, Refusal::Denied},     {ERROR_WRITE_PROTECT, Refusal::Denied},
    {ERROR_FILE_NOT_FOUND, Refusal::NotFound},  {ERROR_PATH_NOT_FOUND, Refusal::NotFound},
    {ERROR_INVALID_NAME, Refusal::WrongName},
};

} // namespace

void Refuse(HostKind host, Refusal refusal, const std::wstring& subject)
{
    const auto at = static_cast<std::size_t>(host);
    const RefusalRow& row = *std::ranges::find(kRows, refusal, &RefusalRow::refusal);
    std::wstring text = Replaced<std::wstring>(row.text, L"%2", FactsOf(host).product);
    text = Replaced(Replaced(text, L"%3", FactsOf(host).noun), L"%1", subject);
    throw Error{row.numbers[at] != 0 ? row.numbers[at] : kUsual[at], {}, text};
}

Refusal RefusalOf(const Error& failure)
{
    const auto row = std::ranges::find(kMeanings, HRESULT_CODE(failure.Number()), &std::pair<int, Refusal>::first);
    return row == std::end(kMeanings) ? Refusal::NotSaved : row->second;
}

} // namespace host
