// A document in every state, in every host and version: what a save makes of it. Prints a line for each.
#include "DocumentStates.h"
#include "FakeRequest.h"
#include "HostTest.h"
#include "OfferedClass.h"

#include "platform/Files.h"
#include "platform/Procedure.h"
#include "shared/DocumentNames.h"
#include "shared/DocumentProperties.h"
#include "shared/DocumentUpload.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

#include <cstdio>
#include <gtest/gtest.h>

using namespace corvane;

namespace
{

const DocumentBinding kBinding{{.projectId = 12, .deliverableId = 45}, L"http://h"};

// Where the user's documents are, until the object ends. Wine makes a link to the home folder of a folder that is not
// there yet.
class DocumentsAt
{
public:
    explicit DocumentsAt(const std::wstring& folder)
    {
        DWORD size = sizeof m_old;
        ::RegGetValueW(HKEY_CURRENT_USER, kKey, L"Personal", RRF_RT_ANY | RRF_NOEXPAND, nullptr, m_old, &size);
        Set(folder);
    }
    ~DocumentsAt() { Set(m_old); }
    DocumentsAt(const DocumentsAt&) = delete;
    DocumentsAt& operator=(const DocumentsAt&) = delete;

private:
    static constexpr wchar_t kKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    static void Set(const std::wstring& folder)
    {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Personal", REG_EXPAND_SZ, folder.c_str(),
                          static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t)));
    }
    wchar_t m_old[MAX_PATH] = L"";
};

struct Result
{
    std::string outcome;
    std::wstring uploadName;
    bool uploaded = false;
};

class Matrix : public host::test::HostTest
{
protected:
    void Play(const HostRow& row, const wchar_t* version, const State& state);
    HostDocument Active() { return HostDocument{Application()}; }
    Result Save();

    Apartment m_apartment;
    FakeRequest m_transport;
    OfferedClass m_class{kXmlHttp3, m_transport.Creator()};

private:
    void OpenDocument(const HostRow& row, const wchar_t* version, const State& state);
    std::wstring FileOf(const State& state, const std::wstring& extension);
    void ExpectBindingIsWholeOrAsItWas();
    void ExpectUploadCarriesTheBinding(const HostRow& row, const wchar_t* version, const Result& result);
};

std::wstring ExtensionOfNew(const HostRow& row, const wchar_t* version, const State& state)
{
    return DefaultExtension(*FindHost(row.name), MajorVersion(version), state.settings.contains("document.macros"));
}

// What a save command makes of the document.
Result Matrix::Save()
{
    if (IsEditing(Application())) return {"editing", {}};
    HostDocument document = Active();
    if (!document.IsOpen()) return {"no document", {}};
    Result result;
    const auto failure = Catch([&] {
        const UploadedDocument uploaded = UploadDocument(document, kBinding);
        const bool inDocuments = uploaded.file.path.starts_with(DocumentsFolder());
        result = {uploaded.file.copy ? "a copy" : inDocuments ? "in Documents" : "in place", uploaded.name, true};
    });
    if (failure) result.outcome = host::Narrow(failure->Description());
    return result;
}

std::wstring Matrix::FileOf(const State& state, const std::wstring& extension)
{
    session->New();
    const LateBound document = Active().Active();
    const bool isNamed = state.document == Document::File || state.document == Document::Shared;
    document.Call(L"SaveAs", folder.File(isNamed ? state.fileName + extension : L"x"));
    std::wstring path = document.Text(L"FullName");
    document.Call(L"Close");
    if (state.document == Document::Shared) return path.replace(0, 2, L"\\\\localhost\\" + path.substr(0, 1) + L"$");
    if (state.document != Document::Renamed) return path;
    const std::wstring wanted = L"\\\\?\\" + folder.File(state.fileName);
    for (std::size_t at = wanted.find(L'\\', folder.Path().size() + 5); at != std::wstring::npos;
         at = wanted.find(L'\\', at + 1))
        ::CreateDirectoryW(wanted.substr(0, at).c_str(), nullptr);
    EXPECT_TRUE(::MoveFileExW(path.c_str(), wanted.c_str(), MOVEFILE_REPLACE_EXISTING));
    return folder.File(state.fileName);
}

void Matrix::OpenDocument(const HostRow& row, const wchar_t* version, const State& state)
{
    Start(row.option, version);
    const std::wstring extension = ExtensionOfNew(row, version, state);
    const bool isFile = state.document != Document::None && state.document != Document::New;
    const std::wstring path = isFile ? FileOf(state, extension) : L"";
    for (const auto& [name, value] : state.settings)
        session->Set(name, name == "document.url" ? value + host::Narrow(extension) : value);
    if (isFile) session->Open(path, false);
    if (state.document == Document::New) session->New();
}

void Matrix::ExpectBindingIsWholeOrAsItWas()
{
    const DocumentBinding binding = ReadBinding(Active());
    EXPECT_TRUE(binding.server.empty() == (binding.projectId == 0) &&
                (binding.projectId == 0) == (binding.deliverableId == 0));
    for (const auto& property : kBindingProperties)
        EXPECT_EQ(CustomPropertyExists(Active(), property.name), !binding.server.empty()) << property.name;
}

void Matrix::ExpectUploadCarriesTheBinding(const HostRow& row, const wchar_t* version, const Result& result)
{
    const std::string& body = m_transport.sent;
    EXPECT_NE(body.find("filename=\"" + host::Narrow(result.uploadName) + "\"\r\n"), std::string::npos);
    const std::size_t start = body.find("\r\n\r\n") + 4;
    const std::string file = body.substr(start, body.rfind("\r\n--") - start);
    const std::wstring path = folder.File(L"uploaded" + ExtensionOf(result.uploadName));
    corvane::WriteFile(path, std::as_bytes(std::span{file}));
    if (row.bit == kOutlook) return;
    Start(row.option, version);
    session->Open(path, true);
    EXPECT_EQ(ReadBinding(Active()).server, kBinding.server);
    EXPECT_EQ(ReadBinding(Active()).deliverableId, kBinding.deliverableId);
    session.reset();
    ::DeleteFileW(path.c_str());
}

void Matrix::Play(const HostRow& row, const wchar_t* version, const State& state)
{
    m_transport.text = L"100000000";
    OpenDocument(row, version, state);
    const Result result = Save();
    std::printf("%-10s %-4ls %-26s %s%s%s\n", row.option, version, state.name, result.outcome.c_str(),
                result.uploaded ? ", uploaded as " : "", host::Narrow(result.uploadName).c_str());
    EXPECT_NE(result.outcome.find(state.outcome), std::string::npos);
    EXPECT_EQ(result.uploaded, state.uploadName != nullptr);
    if (row.bit != kOutlook && Active().IsOpen()) ExpectBindingIsWholeOrAsItWas();
    if (!result.uploaded) return;
    std::wstring name = state.uploadName;
    if (name.ends_with(L'*')) name.replace(name.size() - 1, 1, ExtensionOfNew(row, version, state));
    EXPECT_EQ(result.uploadName, name);
    ExpectUploadCarriesTheBinding(row, version, result);
}

TEST_F(Matrix, OfHostVersionAndDocumentState)
{
    const std::wstring place = folder.Path() + L"\\Documents";
    ::CreateDirectoryW(place.c_str(), nullptr);
    const DocumentsAt documents{place};
    for (const HostRow& row : kHostRows) {
        for (const wchar_t* version : {L"11.0", L"12.0", L"14.0", L"16.0"}) {
            for (const State& state : kStates) {
                if ((state.hosts & row.bit) == 0 || MajorVersion(version) < state.firstVersion) continue;
                SCOPED_TRACE(testing::Message() << row.option << " " << MajorVersion(version) << " " << state.name);
                Play(row, version, state);
                session.reset();
            }
        }
    }
    EXPECT_EQ(m_transport.references, 0U);
}

TEST_F(Matrix, OfFilesLostBetweenSaveAndUpload)
{
    ::PostQuitMessage(0); // ends each pause before another attempt at once
    const char* retry = "Please retry your Save to Corvane.";
    Play(kHostRows[0], L"16.0",
         {"deleted after the save", kPowerPoint, {{"save.fault", "gone"}}, Document::File, retry});
    Play(kHostRows[1], L"16.0", {"held after the save", kWord, {{"save.fault", "held"}}, Document::File, retry});
    MSG quit{};
    EXPECT_TRUE(::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Matrix, OfADocumentsFolderThatIsGone)
{
    const DocumentsAt documents{L"Q:\\gone\\Documents"};
    for (const HostRow& row : kHostRows)
        if (row.bit != kOutlook)
            Play(row, L"16.0", {"Documents missing", kFiles, {}, Document::New, "save the document to disk and then"});
}

TEST_F(Matrix, LetsExcelAloneBeInteractiveOrNot)
{
    Start("excel");
    for (const bool interactive : {false, true}) {
        Active().SetInteractive(interactive);
        EXPECT_EQ(Application().Number(L"Interactive") != 0, interactive);
    }
    Start("word");
    Active().SetInteractive(false); // no member, no error
}

TEST_F(Matrix, TakesTheStartOfAMailsBodyAndNoAuthorFromIt)
{
    Start("outlook", L"16.0", {{"mail.body", std::string(300, 'b')}});
    session->New();
    EXPECT_EQ(Active().BodyStart(), std::wstring(200, L'b'));
    EXPECT_EQ(Active().Author(), L"");
    Start("excel");
    session->New();
    EXPECT_EQ(Active().BodyStart(), L"");
    EXPECT_EQ(Active().Author(), L"Stand-in User");
}

} // namespace
