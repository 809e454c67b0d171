#include "documents/Refusal.h"

#include <algorithm>

namespace host
{
namespace
{

// %1 is the subject, %2 the program, %3 what it calls a document.
struct RefusalText
{
    Refusal refusal;
    const wchar_t* text;
};

constexpr RefusalText kTexts[] = {
    {Refusal::NoDocument, L"There is no active %3."},
    {Refusal::Closed, L"The %3 does not exist any more."},
    {Refusal::ReadOnly, L"%2 cannot save %1: it is read-only."},
    {Refusal::Final, L"The %3 %1 is marked as final: it cannot be edited."},
    {Refusal::UnknownFormat, L"This host does not save in format %1."},
    {Refusal::WrongExtension, L"This extension cannot be used with the selected file type: %1."},
    {Refusal::WrongName, L"This is not a valid file name: %1."},
    {Refusal::Locked, L"%2 cannot use %1: another program has it open."},
    {Refusal::DiskFull, L"%2 cannot save %1: the disk is full."},
    {Refusal::Denied, L"%2 cannot use %1: access is denied."},
    {Refusal::NotFound, L"%2 cannot find %1."},
    {Refusal::NotSaved, L"An error occurred while %2 was saving the file %1."},
    {Refusal::NotRead, L"%2 cannot read %1."},
    {Refusal::NoMacro, L"The macro %1 cannot be found."},
    {Refusal::MacroFailed, L"The macro %1 failed."},
};

constexpr HRESULT Number(unsigned long bits) { return static_cast<HRESULT>(bits); }

// Where a host reports by another number than its usual one.
struct RefusalNumber
{
    HostKind host;
    Refusal refusal;
    HRESULT number;
};

constexpr RefusalNumber kNumbers[] = {
    {HostKind::PowerPoint, Refusal::NoDocument, kInvalidRequest},
    {HostKind::PowerPoint, Refusal::Closed, kInvalidRequest},
    {HostKind::PowerPoint, Refusal::Final, kInvalidRequest},
    {HostKind::PowerPoint, Refusal::UnknownFormat, E_INVALIDARG},
    {HostKind::PowerPoint, Refusal::NoMacro, kInvalidRequest},
    {HostKind::PowerPoint, Refusal::MacroFailed, kInvalidRequest},
    {HostKind::Word, Refusal::NoDocument, Number(0x800A1098)},    // 4248
    {HostKind::Word, Refusal::Closed, Number(0x800A16C1)},        // 5825
    {HostKind::Word, Refusal::ReadOnly, Number(0x800A1423)},      // 5155
    {HostKind::Word, Refusal::Final, Number(0x800A11FD)},         // 4605
    {HostKind::Word, Refusal::UnknownFormat, Number(0x800A1200)}, // 4608
    {HostKind::Word, Refusal::WrongName, Number(0x800A1420)},     // 5152
    {HostKind::Word, Refusal::Locked, Number(0x800A14EC)},        // 5356
    {HostKind::Word, Refusal::NotFound, Number(0x800A1436)},      // 5174
    {HostKind::Word, Refusal::NoMacro, DISP_E_MEMBERNOTFOUND},
    {HostKind::Excel, Refusal::Closed, Number(0x800401A8)},
    {HostKind::Outlook, Refusal::Closed, Number(0x8004010A)},
    {HostKind::Outlook, Refusal::UnknownFormat, E_INVALIDARG},
    {HostKind::Outlook, Refusal::WrongName, STG_E_INVALIDNAME},
    {HostKind::Outlook, Refusal::Locked, STG_E_SHAREVIOLATION},
    {HostKind::Outlook, Refusal::DiskFull, STG_E_MEDIUMFULL},
    {HostKind::Outlook, Refusal::Denied, STG_E_ACCESSDENIED},
};

HRESULT UsualNumber(HostKind host)
{
    switch (host) {
    case HostKind::Word:
        return Number(0x800A1066); // 4198
    case HostKind::Excel:
        return Number(0x800A03EC); // 1004
    case HostKind::PowerPoint:
    case HostKind::Outlook:
        break;
    }
    return E_FAIL;
}

void Fill(std::wstring& text, std::wstring_view mark, const std::wstring& by)
{
    const std::size_t at = text.find(mark);
    if (at != std::wstring::npos) text.replace(at, mark.size(), by);
}

} // namespace

void Refuse(HostKind host, Refusal refusal, const std::wstring& subject)
{
    const auto row =
        std::ranges::find_if(kNumbers, [&](const RefusalNumber& r) { return r.host == host && r.refusal == refusal; });
    std::wstring text = std::ranges::find(kTexts, refusal, &RefusalText::refusal)->text;
    Fill(text, L"%2", FactsOf(host).product);
    Fill(text, L"%3", FactsOf(host).noun);
    Fill(text, L"%1", subject);
    throw Error{row == std::end(kNumbers) ? UsualNumber(host) : row->number, {}, text};
}

Refusal RefusalOf(const Error& failure)
{
    switch (HRESULT_CODE(failure.Number())) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return Refusal::Locked;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return Refusal::DiskFull;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return Refusal::Denied;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return Refusal::NotFound;
    case ERROR_INVALID_NAME:
        return Refusal::WrongName;
    default:
        return Refusal::NotSaved;
    }
}

} // namespace host
