#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#ifdef _WIN32
#include <windows.h>
#else
#include <sys/wait.h>
#define _popen popen
#define _pclose(pipe) WEXITSTATUS(pclose(pipe))
#endif

namespace server
{

TEST(Program, EndsWithStatusTwoWhereItsArgumentsAreRefused)
{
    FILE* program = ::_popen(CORVANE_SERVER " --user Bob 2>&1", "r");
    char told[512] = "";
    (void)std::fread(told, 1, sizeof told - 1, program);
    EXPECT_TRUE(std::string{told}.starts_with("corvane-server: There is no user 'Bob'. Users: Dana Reyes")) << told;
    EXPECT_EQ(_pclose(program), 2);
}

#ifdef _WIN32
TEST(Program, EndsInOrderAtABreak)
{
    const auto folder = std::filesystem::temp_directory_path() / L"Größe";
    std::filesystem::create_directory(folder);
    ::SetEnvironmentVariableW(L"TMP", folder.c_str());
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION server{};
    auto command = L"\"" CORVANE_SERVER "\" --log \"" + (folder / L"日誌").wstring() + L'"';
    ASSERT_TRUE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &server));
    ::SetEnvironmentVariableW(L"TMP", folder.parent_path().c_str());
    while (!std::filesystem::exists(folder / L"日誌") && ::WaitForSingleObject(server.hProcess, 10) == WAIT_TIMEOUT) {
    }
    // As the system does it where there is a console.
    const auto routine = reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernelbase"), "CtrlRoutine"));
    EXPECT_TRUE(::CreateRemoteThread(server.hProcess, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(routine),
                                     reinterpret_cast<void*>(CTRL_BREAK_EVENT), 0, nullptr));
    EXPECT_EQ(::WaitForSingleObject(server.hProcess, 20000), WAIT_OBJECT_0);
    DWORD status = 99;
    ::GetExitCodeProcess(server.hProcess, &status);
    EXPECT_EQ(status, 0U);
    EXPECT_EQ(std::filesystem::remove_all(folder), 2U) << "the server's own folder is left";
}
#endif

} // namespace server
