#include "app/Companions.h"

#include <gtest/gtest.h>

#include "Script.h"

namespace host
{
namespace
{

using test::Script;

Options With(const std::string& name, const std::string& value)
{
    Options options;
    options.settings[name] = value;
    return options;
}

ComPtr<IDispatch> CreateByProgId(const wchar_t* progId)
{
    CLSID classId{};
    ComPtr<IDispatch> object;
    if (SUCCEEDED(::CLSIDFromProgID(progId, &classId)))
        ::CoCreateInstance(classId, nullptr, CLSCTX_ALL, IID_IDispatch,
                           reinterpret_cast<void**>(object.GetAddressOf()));
    return object;
}

class CompanionsTest : public testing::Test
{
protected:
    CompanionsTest() { ::OleInitialize(nullptr); }
    ~CompanionsTest() override { ::OleUninitialize(); }
};

TEST_F(CompanionsTest, SiblingAnswersWhatTheSettingSaysAndIsGoneAfterwards)
{
    for (const bool loggedIn : {true, false}) {
        const Companions companions{With("sibling.login", loggedIn ? "true" : "false")};
        const auto login = CreateByProgId(L"CorvaneMSOfficeExcel.CLogin");
        ASSERT_TRUE(login);
        EXPECT_EQ(Script{login.Get()}.Call(L"IsLoggedIn").Boolean(), loggedIn);
    }
    EXPECT_FALSE(CreateByProgId(L"CorvaneMSOfficeExcel.CLogin"));
    const Companions none{With("sibling.login", "maybe")};
    EXPECT_FALSE(CreateByProgId(L"CorvaneMSOfficeExcel.CLogin"));
}

TEST_F(CompanionsTest, MailCountsOnceItIsDisplayed)
{
    const Companions companions{With("outlook", "new")};
    const auto outlook = CreateByProgId(L"Outlook.Application");
    ASSERT_TRUE(outlook);
    const Script mail = Script{outlook.Get()}.Object(L"CreateItem", {0L});
    mail.Put(L"To", L"a@example.org; ");
    mail.Put(L"Subject", L"s");
    EXPECT_EQ(companions.LastMail(), nullptr);
    mail.Call(L"Display");
    ASSERT_NE(companions.LastMail(), nullptr);
    EXPECT_EQ(companions.LastMail()->at(L"To"), L"a@example.org; ");
}

TEST_F(CompanionsTest, RunningMailProgramIsFoundAsActiveObjectWhileItRuns)
{
    CLSID classId{};
    ComPtr<IUnknown> running;
    {
        const Companions companions{With("outlook", "running")};
        ASSERT_EQ(::CLSIDFromProgID(L"Outlook.Application", &classId), S_OK);
        EXPECT_EQ(::GetActiveObject(classId, nullptr, running.GetAddressOf()), S_OK);
    }
    running.Reset();
    EXPECT_NE(::GetActiveObject(classId, nullptr, running.GetAddressOf()), S_OK);
    const Companions companions{With("outlook", "new")};
    EXPECT_NE(::GetActiveObject(classId, nullptr, running.GetAddressOf()), S_OK) << "a new one does not run yet";
}

} // namespace
} // namespace host
