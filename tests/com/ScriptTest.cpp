#include "AddInLibrary.h"
#include "MessageBox.h"

#include <vector>

namespace
{

// The user's registration, shown to scripts as well: Wine offers them only the classes of the machine.
class Script : public AddInLibrary
{
protected:
    void SetUp() override
    {
        AddInLibrary::SetUp();
        ASSERT_EQ(Run("DllRegisterServer"), S_OK);
        for (const std::wstring& key : Keys())
            CopyToMachine(key);
    }
    void TearDown() override
    {
        for (const std::wstring& key : Keys())
            ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
        EXPECT_EQ(Run("DllUnregisterServer"), S_OK);
        AddInLibrary::TearDown();
    }

    // The keys of the classes that the script creates.
    static std::vector<std::wstring> Keys()
    {
        std::vector<std::wstring> keys;
        for (const wchar_t* name : {L"CController", L"CTraceLog", L"CRbnBtnInfo"}) {
            const std::wstring classes = L"Software\\Classes\\";
            keys.push_back(classes + L"CorvaneMSOfficePowerPoint." + name);
            wchar_t classId[64] = L"";
            DWORD size = sizeof classId;
            ::RegGetValueW(HKEY_CURRENT_USER, (keys.back() + L"\\CLSID").c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
                           classId, &size);
            keys.push_back(classes + L"CLSID\\" + classId);
        }
        return keys;
    }
    static void CopyToMachine(const std::wstring& key)
    {
        HKEY from = nullptr;
        HKEY to = nullptr;
        ::RegOpenKeyW(HKEY_CURRENT_USER, key.c_str(), &from);
        ::RegCreateKeyW(HKEY_LOCAL_MACHINE, key.c_str(), &to);
        EXPECT_EQ(::RegCopyTreeW(from, nullptr, to), ERROR_SUCCESS);
        ::RegCloseKey(from);
        ::RegCloseKey(to);
    }

    // Runs the script in a script host of its own; its exit code, or -1 when it did not end in time.
    static int RunScript(std::wstring command)
    {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
            return -1;
        constexpr DWORD kPatience = 60000;
        DWORD code = static_cast<DWORD>(-1);
        if (::WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0)
            ::GetExitCodeProcess(process.hProcess, &code);
        else
            ::TerminateProcess(process.hProcess, code);
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
        return static_cast<int>(code);
    }
};

TEST_F(Script, CallsEveryPublicMember)
{
    const std::wstring missing = L"\r\nObject variable or With block variable not set";
    const MessageBoxAnswer assignment{L"CController.SaveAsAssignement" + missing, L"CorvaneMSOffice"};
    const MessageBoxAnswer gateDoc{L"CController.SaveGateDoc" + missing, L"CorvaneMSOffice"};
    const MessageBoxAnswer relatedDoc{L"CController.SaveRelatedDoc" + missing, L"CorvaneMSOffice"};
    EXPECT_EQ(RunScript(L"cscript //nologo \"" SCRIPT L"\""), 0);
    EXPECT_TRUE(assignment.Appeared());
    EXPECT_TRUE(gateDoc.Appeared());
    EXPECT_TRUE(relatedDoc.Appeared());
}

} // namespace
