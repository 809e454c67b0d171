#pragma once

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include "Script.h"
#include "TemporaryFolder.h"
#include "automation/Text.h"
#include "objects/Application.h"
#include "objects/Session.h"

namespace host::test
{

inline constexpr HRESULT Number(unsigned long bits) { return static_cast<HRESULT>(bits); }
inline constexpr HRESULT kExcelError = Number(0x800A03EC);

// How a host names what this test uses.
struct HostRow
{
    const char* option;
    const wchar_t* name;
    const wchar_t* active;
    const wchar_t* documents;
    HRESULT whenNoneIsActive; // S_OK: Nothing
    const wchar_t* newName;
    const wchar_t* saved; // under the name "a", by version 11 and 16
    const wchar_t* classic;
    HRESULT afterClosing;
    HRESULT readOnly;
    HRESULT final;
    HRESULT locked;
    HRESULT unknownFormat;
    VARTYPE flag; // the type of Saved and ReadOnly
};

inline constexpr HostRow kHosts[] = {
    {"powerpoint", L"Microsoft PowerPoint", L"ActivePresentation", L"Presentations", kInvalidRequest, L"Presentation1",
     L"a.pptx", L"a.ppt", kInvalidRequest, E_FAIL, kInvalidRequest, E_FAIL, E_INVALIDARG, VT_I4},
    {"word", L"Microsoft Word", L"ActiveDocument", L"Documents", Number(0x800A1098), L"Document1", L"a.docx", L"a.doc",
     Number(0x800A16C1), Number(0x800A1423), Number(0x800A11FD), Number(0x800A14EC), Number(0x800A1200), VT_BOOL},
    {"excel", L"Microsoft Excel", L"ActiveWorkbook", L"Workbooks", S_OK, L"Book1", L"a.xlsx", L"a.xls",
     Number(0x800401A8), kExcelError, kExcelError, kExcelError, kExcelError, VT_BOOL},
};

inline const HostRow& RowOf(const std::string& option) { return *std::ranges::find(kHosts, option, &HostRow::option); }

// A host of any kind and version, with a folder for its documents.
class HostTest : public testing::Test
{
protected:
    void Start(const char* host, const wchar_t* version = L"16.0", Settings settings = {})
    {
        session.reset();
        Options options;
        options.host = FindHost(Widen(host))->kind;
        options.version = version;
        options.settings = std::move(settings);
        session = std::make_unique<Session>(options);
    }
    Script Application() { return Script{&session->Application()}; }
    static Value Flag(bool value) { return Value::OfBoolean(value); }

    // A file of the host that is not open any more.
    std::wstring SavedFile(const HostRow& row, const wchar_t* name = L"a")
    {
        session->New();
        const Script active = Application().Object(row.active);
        active.Call(L"SaveAs", {std::wstring_view{folder.File(name)}});
        const std::wstring path = active.Call(L"FullName").Text();
        active.Call(L"Close");
        return path;
    }
    static HRESULT AddProperty(const Script& document)
    {
        const Script properties = document.Object(L"CustomDocumentProperties");
        return FailureOf([&] { properties.Call(L"Add", {L"Id", Flag(false), 1L, 7L}); });
    }

    TemporaryFolder folder;
    std::unique_ptr<Session> session;
};

} // namespace host::test
