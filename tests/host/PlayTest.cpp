// Plays scenarios in the real host program with the fake add-in, each in a process of its own.
#include <gtest/gtest.h>

#include <windows.h>

#include <iostream>
#include <objbase.h>

#include "FakeAddIn.h"
#include "TemporaryFolder.h"
#include "base/Text.h"
#include "documents/Files.h"
#include "platform/Registry.h"

namespace host
{
namespace
{

namespace Registry = corvane::Registry;

constexpr wchar_t kAddInKey[] = L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\";
constexpr wchar_t kClasses[] = L"Software\\Classes\\";

std::wstring OwnFolder()
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return FolderOf(path);
}

int WidthOf(const std::string& png)
{
    return png.size() < 24 ? 0 : static_cast<unsigned char>(png[18]) * 256 + static_cast<unsigned char>(png[19]);
}

// Wine, on a busy machine, has once failed to start a program that was there: such a start is told and tried again.
bool Start(std::wstring& line, STARTUPINFOW& start, PROCESS_INFORMATION& process)
{
    for (int attempt = 1; attempt <= 3; ++attempt) {
        if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
            return true;
        std::cerr << "CreateProcess, attempt " << attempt << ": error " << ::GetLastError() << '\n';
    }
    return false;
}

struct Outcome
{
    DWORD status = 0;
    std::string output;
};

class PlayTest : public testing::Test
{
protected:
    PlayTest()
    {
        const std::wstring classKey = std::wstring{kClasses} + L"CLSID\\" + test::kFakeClass;
        Registry::WriteText(classKey + L"\\InprocServer32", {}, OwnFolder() + L"\\" + WIDE_FAKE_ADDIN);
        Registry::WriteText(classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
        Registry::WriteText(std::wstring{kClasses} + test::kFakeProgId + L"\\CLSID", {}, test::kFakeClass);
        Registry::WriteNumber(std::wstring{kAddInKey} + test::kFakeProgId, L"LoadBehavior", 3);
    }
    ~PlayTest() override
    {
        for (const wchar_t* name : {L"FAKE_FAIL", L"FAKE_LEAK"})
            ::SetEnvironmentVariableW(name, nullptr);
        Registry::DeleteTree(std::wstring{kAddInKey} + test::kFakeProgId);
        Registry::DeleteTree(std::wstring{kClasses} + test::kFakeProgId);
        Registry::DeleteTree(std::wstring{kClasses} + L"CLSID\\" + test::kFakeClass);
    }

    Outcome Play(const std::string& script, const std::wstring& arguments = {})
    {
        WriteWholeFile(folder.File(L"play.txt"), script);
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        UniqueFile log{::CreateFileW(folder.File(L"log.txt").c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     &inherited, CREATE_ALWAYS, 0, nullptr)};
        std::wstring line = L"\"" HOST_PROGRAM L"\" --play \"" + folder.File(L"play.txt") + L"\" --set \"FOLDER=" +
                            folder.Path() + L"\" --set macro.Fake.BeforeSave=ok " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = log.Get();
        start.hStdError = log.Get();
        PROCESS_INFORMATION process{};
        EXPECT_TRUE(Start(line, start, process));
        const UniqueFile handle{process.hProcess};
        const UniqueFile thread{process.hThread};
        Outcome outcome;
        EXPECT_EQ(::WaitForSingleObject(process.hProcess, 90000), WAIT_OBJECT_0);
        ::GetExitCodeProcess(process.hProcess, &outcome.status);
        log = UniqueFile{};
        outcome.output = ReadWholeFile(folder.File(L"log.txt"));
        return outcome;
    }

    static void ExpectPassed(const Outcome& outcome)
    {
        EXPECT_EQ(outcome.status, 0u) << outcome.output;
        EXPECT_NE(outcome.output.find("scenario passed: play.txt"), std::string::npos) << outcome.output;
    }

    static void ExpectFailed(const Outcome& outcome, const std::string& reason)
    {
        EXPECT_NE(outcome.status, 0u) << outcome.output;
        EXPECT_NE(outcome.output.find(reason), std::string::npos) << outcome.output;
        EXPECT_EQ(outcome.output.find("scenario passed"), std::string::npos) << outcome.output;
    }

    test::TemporaryFolder folder;
};

constexpr char kOpenForm[] = "new\nsaveas \"${FOLDER}\\plan\"\ncommand OpenForm\nwindow frmSaveTo\n";
constexpr char kImpatient[] = "set patience 0\n"; // for the step that is to fail; those before it take their time

struct FailingStep
{
    const char* name;
    const char* step;
    const char* reason;
};

class FailingStepTest : public PlayTest, public testing::WithParamInterface<FailingStep>
{};

TEST_P(FailingStepTest, IsReportedWithWhatIsThereInstead)
{
    const Outcome outcome = Play(std::string{kOpenForm} + "press cmdGo\n" + kImpatient + GetParam().step + "\n",
                                 L"--out \"" + folder.Path() + L"\"");
    ExpectFailed(outcome, std::string{"play.txt:7: "} + GetParam().step);
    EXPECT_NE(outcome.output.find(GetParam().reason), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("frmSaveTo \"Fake form\""), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("txtName Edit \"old name\""), std::string::npos) << outcome.output;
    EXPECT_GT(WidthOf(ReadWholeFile(folder.File(L"failed.png"))), 0);
}

constexpr FailingStep kFailingSteps[] = {
    {"NoMessage", "message \"not this\" OK", "no message is open"},
    {"WrongText", "expect txtName \"new\"", "it is \"old name\""},
    {"TextInAnotherCase", "expect txtName \"Old name\"", "it is \"old name\""},
    {"WrongState", "expect cmdOK enabled", "it is not enabled"},
    {"NotDefault", "expect cmdCancel default", "it is not default"},
    {"DisabledButton", "press cmdOK", "cmdOK is disabled"},
    {"MissingControl", "press txtGate", "no txtGate in frmSaveTo"},
    {"UnknownControl", "press cmdNowhere", "no control is named cmdNowhere"},
    {"MissingNode", "select TreeView1 \"Apollo/Nowhere\"", "there is \"Business case\", \"Risk/Reward\""},
    {"MissingEntry", "choose ClassList \"Middle\"", "the list has no entry"},
    {"MissingWindow", "window frmFilter", "no window frmFilter"},
    {"OpenWindow", "closed frmSaveTo", "the window frmSaveTo is open"},
    {"PressThatClosesNothing", "press cmdGo closes", "the window frmSaveTo is open"},
    {"MissingProperty", "property Node \"x\"", "no property Node"},
    {"MacroNotRun", "ran \"Fake.BeforeSave\"", "the macro was not run"},
    {"FileMissing", "file exists \"${FOLDER}\\nothing*.pptx\"", "there is no such file"},
    {"NoMail", "mail To \"x\"", "no mail"},
    {"NoLetter", "letter \"x\"", "no mail is displayed"},
    {"UnknownCommand", "command Nowhere", "no control Nowhere"},
    {"QuitWhileAFormIsOpen", "quit", "a command is still running"},
};

TEST_F(PlayTest, SeesWhatIsWrongInALayout)
{
    const struct
    {
        const char* way;
        const char* step;
        const char* finding;
    } kSpoilt[] = {
        {"cut", "fits frmSaveTo", "chkPublish cuts \"Publish this at once to everybody\" off"},
        {"shorten", "fits frmSaveTo", "chkPublish is shortened without a tooltip"},
        {"caption", "fits frmSaveTo", "the title bar cuts \"WWW"},
        {"title", "fits frmSaveTo", "the title bar is shortened without a tooltip"},
        {"overlap", "fits frmSaveTo", "cmdGo and TreeView1 overlap"},
        {"outside", "fits frmSaveTo", "cmdCancel reaches out of the form"},
        {"leave", "fits frmSaveTo", "the form reaches out of the screen"},
        {"key", "readable frmSaveTo", "lblNotes and chkPublish have the access key p"},
        {"", "readable frmSaveTo", "ClassList has no name for screen readers"},
        {"", "spoken txtNotes \"Name\"", "its name is \"Notes\""},
        {"", "hover txtNotes \"Notes\"", "the tooltip is \"\""},
        {"", "over frmSaveTo host", "it is not in the middle of its owner"},
    };
    for (const auto& item : kSpoilt) {
        const std::string spoil = "type txtName \"" + std::string{item.way} + "\"\n";
        ExpectFailed(Play(kOpenForm + spoil + kImpatient + item.step + "\n"), item.finding);
    }
}

INSTANTIATE_TEST_SUITE_P(PlayTest, FailingStepTest, testing::ValuesIn(kFailingSteps),
                         [](const auto& given) { return std::string{given.param.name}; });

TEST_F(PlayTest, TellsMessagesApartToTheBlankAndShowsTheOneThatIsThere)
{
    const std::pair<const char*, const char*> faults[] = {
        {"message \"activations and 0 closed\" Yes", "the message is \"1 activations\" \"and  0 closed\""},
        {"message exactly \"1 activations\" Yes", "the message is \"1 activations\" \"and  0 closed\""},
        {"message \"activations \" \"and\" Yes", "the message is \"1 activations\" \"and  0 closed\""},
        {"message \"activations\" Cancel", "the message has no button Cancel"},
        {"window message\nexpect icon exclamation", "it is question"},
        {"window message\nexpect caption \"fake\"", "it is \"Fake\""},
    };
    for (const auto& [step, reason] : faults)
        ExpectFailed(Play(std::string{"new\ncommand Hello\nwindow message\n"} + kImpatient + step + "\n"), reason);
}

TEST_F(PlayTest, WritesShotsAndTheRibbonIntoItsFolder)
{
    ExpectPassed(
        Play("new\nshow File\nshot \"one\"\nshot \"window\" CorvaneHostWindow\n", L"--out \"" + folder.Path() + L"\""));
    const std::string picture = ReadWholeFile(folder.File(L"one.png"));
    ASSERT_TRUE(picture.starts_with("\x89PNG")) << "no picture";
    const int width = WidthOf(picture);
    EXPECT_EQ(width, ::GetSystemMetrics(SM_CXSCREEN));
    const int part = WidthOf(ReadWholeFile(folder.File(L"window.png")));
    EXPECT_TRUE(part > 0 && part < width) << "more than the window is in the picture";
    EXPECT_NE(ReadWholeFile(folder.File(L"customUI.xml")).find("label=\"Fake &amp;&amp; Co\""), std::string::npos);
}

TEST_F(PlayTest, RefusesOptionsThatItDoesNotUnderstand)
{
    for (const wchar_t* words : {L"--verison 16.0", L"--version new", L"--host access", L"--set NAME", L"--play"})
        ExpectFailed(Play("quit\n", words), "usage: ");
}

TEST_F(PlayTest, FailsWhereTheAddInDoes)
{
    ExpectFailed(Play("new\ncommand Broken\nquit\n"), "Missing is missing");
    ExpectFailed(Play("new\nquit\n", L"--version 12.0"), "not known to this version"); // its ribbon
    ::SetEnvironmentVariableW(L"FAKE_LEAK", L"1");
    ExpectFailed(Play("new\nquit\n"), "still referenced by the add-in: Application x1");
}

TEST_F(PlayTest, SwitchesOffAnAddInThatDoesNotLoad)
{
    ::SetEnvironmentVariableW(L"FAKE_FAIL", L"1");
    ExpectPassed(Play("expect addin failed\nnew\nquit\n"));
    const std::wstring key = std::wstring{kAddInKey} + test::kFakeProgId;
    EXPECT_EQ(Registry::ReadNumber(key, L"LoadBehavior"), 2);
    ExpectPassed(Play("expect addin absent\nquit\n"));
    Registry::WriteNumber(key, L"LoadBehavior", 3);
    ExpectFailed(Play("new\nquit\n"), "OnConnection failed");
}

TEST_F(PlayTest, LoadsTheAddInsOfTheHostThatItIs)
{
    for (const std::wstring host : {L"word", L"excel", L"outlook"}) {
        const std::wstring key = L"Software\\Microsoft\\Office\\" + host + L"\\Addins\\" + test::kFakeProgId;
        Registry::WriteNumber(key, L"LoadBehavior", 3);
        ExpectPassed(Play("new\nset author Bo\ncommand Hello\nmessage \"0 activations\" No\n", L"--host " + host));
        ::RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
    }
}

TEST_F(PlayTest, OffersTheSiblingsLoginOnlyWhileItRuns)
{
    ExpectPassed(Play("new\nquit\n", L"--set sibling.login=true --set outlook=running"));
    CLSID found{};
    EXPECT_TRUE(FAILED(::CLSIDFromProgID(L"CorvaneMSOfficeExcel.CLogin", &found)));
}

} // namespace
} // namespace host
