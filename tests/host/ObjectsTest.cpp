#include <gtest/gtest.h>

#include "Script.h"
#include "TemporaryFolder.h"
#include "automation/OfficeInterfaces.h"
#include "automation/Text.h"
#include "objects/Application.h"
#include "objects/CommandBars.h"
#include "objects/Session.h"

namespace host
{
namespace
{

using test::FailureOf;
using test::Script;

// Counts the events of the application.
class EventCounter final : public AutomationObject<IDispatch>
{
public:
    EventCounter() : AutomationObject{L"EventCounter", kApplicationEventsId} {}

    std::span<const Member> Members() const override
    {
        static constexpr Member kMembers[] = {
            {2004, L"PresentationClose", kMethod, Answer<&EventCounter::Note>},
            {2009, L"WindowActivate", kMethod, Answer<&EventCounter::NoteActivation>},
            {2018, L"PresentationBeforeSave", kMethod, Answer<&EventCounter::Note>},
            {2031, L"PresentationCloseFinal", kMethod, Answer<&EventCounter::Note>},
        };
        return kMembers;
    }

    Value Note(const Arguments& arguments)
    {
        seen += Script{arguments.At(0).Object()}.Call(L"Name").Text() + L";";
        return {};
    }
    Value NoteActivation(const Arguments& arguments)
    {
        seen += L"activate " + Script{arguments.At(1).Object()}.Call(L"Caption").Text() + L";";
        return {};
    }

    std::wstring seen;
};

class ObjectsTest : public testing::Test
{
protected:
    explicit ObjectsTest(std::wstring version = L"16.0")
    {
        Options options;
        options.version = std::move(version);
        options.settings = {{"macro.KRXEvents.KRXBeforeSave", "ok"}, {"macro.Bad", "fail"}, {"author", "Ann"}};
        session = std::make_unique<Session>(options);
    }

    Script Application() { return Script{&session->Application()}; }
    Script Active() { return Application().Object(L"ActivePresentation"); }
    Script Properties() { return Active().Object(L"CustomDocumentProperties"); }
    void AddProperty(const wchar_t* name, long type, const Value& value)
    {
        Properties().Call(L"Add", {name, Value::OfBoolean(false), type, value});
    }

    test::TemporaryFolder folder;
    std::unique_ptr<Session> session;
};

TEST_F(ObjectsTest, AnswersAsTheApplicationDoesByNameInAnyCase)
{
    EXPECT_EQ(Application().Call(L"NAME").Text(), L"Microsoft PowerPoint");
    EXPECT_EQ(Application().Call(L"version").Text(), L"16.0");
    ComPtr<IUnknown> typed;
    EXPECT_EQ(Application().Get()->QueryInterface(kApplicationId, reinterpret_cast<void**>(typed.GetAddressOf())),
              S_OK);
    EXPECT_EQ(FailureOf([&] { Active(); }), kInvalidRequest);
    EXPECT_EQ(FailureOf([&] { Application().Call(L"NoSuchMember"); }), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(FailureOf([&] { Application().Put(L"Name", L"x"); }), DISP_E_MEMBERNOTFOUND);
}

TEST_F(ObjectsTest, NeverSavedPresentationHasNoPathAndNoExtension)
{
    session->New();
    EXPECT_EQ(Active().Call(L"Name").Text(), L"Presentation1");
    EXPECT_EQ(Active().Call(L"FullName").Text(), L"Presentation1");
    EXPECT_EQ(Active().Call(L"Path").Text(), L"");
    EXPECT_EQ(Active().Call(L"Saved").Number(), -1);
    EXPECT_EQ(Active().Call(L"ReadOnly").Number(), 0);
    const Script author = Active().Object(L"BuiltInDocumentProperties").Object(L"Item", {L"author"});
    EXPECT_EQ(author.Call(L"Value").Text(), L"Ann");
}

TEST_F(ObjectsTest, PropertiesKeepTheirTypeAndConvertWhatIsPut)
{
    session->New();
    AddProperty(L"Id", 1, L"12");
    AddProperty(L"Flag", 2, 1L);
    AddProperty(L"Text", 4, 7L);
    EXPECT_EQ(Properties().Call(L"Count").Number(), 3);
    EXPECT_EQ(Properties().Object(L"Item", {L"ID"}).Call(L"Value").Type(), VT_I4);
    EXPECT_TRUE(Properties().Object(L"Item", {2L}).Call(L"Value").Boolean());
    EXPECT_EQ(Properties().Object(L"Item", {3L}).Call(L"Value").Text(), L"7");
    EXPECT_EQ(Active().Call(L"Saved").Number(), 0);

    const Script id = Properties().Object(L"Item", {L"Id"});
    id.Put(L"Value", L"34");
    EXPECT_EQ(id.Call(L"Type").Number(), 1);
    EXPECT_EQ(id.Call(L"Value").Number(), 34);
    EXPECT_EQ(FailureOf([&] { id.Put(L"Value", L"abc"); }), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(FailureOf([&] { Properties().Call(L"Item", {L"Missing"}); }), E_INVALIDARG);
    EXPECT_EQ(FailureOf([&] { Properties().Call(L"Item", {4L}); }), E_INVALIDARG);
    EXPECT_EQ(FailureOf([&] { AddProperty(L"id", 4, L"again"); }), E_INVALIDARG);
    id.Call(L"Delete");
    EXPECT_EQ(FailureOf([&] { id.Call(L"Value"); }), E_INVALIDARG);
}

struct FormatCase
{
    const wchar_t* name;
    long type;
    const wchar_t* saved;
    bool compound;
};

TEST_F(ObjectsTest, SavesEachFormatSoThatItOpensWithItsProperties)
{
    const FormatCase cases[] = {{L"a", 11, L"a.pptx", false},
                                {L"b.pptm", 25, L"b.pptm", false},
                                {L"c", 28, L"c.ppsx", false},
                                {L"d", 1, L"d.ppt", true}};
    for (const FormatCase& row : cases) {
        session->New();
        AddProperty(L"KRX_SYS_Server", 4, L"http://h\x00f6st");
        AddProperty(L"KRX_SYS_ProjectID", 1, 12L);
        AddProperty(L"Flag", 2, Value::OfBoolean(true));
        Active().Call(L"SaveAs", {std::wstring_view{folder.File(row.name)}, row.type});
        EXPECT_EQ(Active().Call(L"Name").Text(), row.saved);
        EXPECT_EQ(Active().Call(L"Saved").Number(), -1);
        EXPECT_EQ(ReadWholeFile(folder.File(row.saved)).starts_with("PK"), !row.compound);
        Active().Call(L"Close");

        session->Open(folder.File(row.saved), false);
        EXPECT_EQ(Properties().Object(L"Item", {1L}).Call(L"Value").Text(), L"http://h\x00f6st") << row.type;
        EXPECT_EQ(Properties().Object(L"Item", {L"KRX_SYS_ProjectID"}).Call(L"Value").Type(), VT_I4);
        EXPECT_TRUE(Properties().Object(L"Item", {L"Flag"}).Call(L"Value").Boolean());
        EXPECT_EQ(Active().Object(L"BuiltInDocumentProperties").Object(L"Item", {3L}).Call(L"Value").Text(), L"Ann");
        Active().Call(L"Close");
    }
}

TEST_F(ObjectsTest, CopyLeavesThePresentationWhereItIs)
{
    session->New();
    Active().Call(L"SaveCopyAs", {std::wstring_view{folder.File(L"copy")}});
    EXPECT_EQ(Active().Call(L"Path").Text(), L"");
    EXPECT_NO_THROW(session->Open(folder.File(L"copy.pptx"), false));
}

TEST_F(ObjectsTest, RefusesToSaveWhatCannotBeWritten)
{
    session->New();
    const std::wstring path = folder.File(L"locked.pptx");
    Active().Call(L"SaveAs", {std::wstring_view{path}});
    Active().Call(L"Close");
    {
        const FileHandle lock{
            ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)};
        session->New();
        EXPECT_EQ(FailureOf([&] { Active().Call(L"SaveAs", {std::wstring_view{path}}); }), E_FAIL);
        EXPECT_EQ(Active().Call(L"Path").Text(), L"");
    }
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    session->Open(path, false);
    EXPECT_EQ(Active().Call(L"ReadOnly").Number(), -1);
    EXPECT_EQ(FailureOf([&] { Active().Call(L"Save"); }), E_FAIL);
    EXPECT_EQ(FailureOf([&] { Active().Call(L"SaveAs", {L"C:\\no\\folder\\x.pptx"}); }), E_FAIL);
    EXPECT_EQ(FailureOf([&] { Active().Call(L"SaveAs", {L"x.xml", 34L}); }), E_INVALIDARG);
}

TEST_F(ObjectsTest, HoldsAnOpenFileAgainstWritersOnly)
{
    session->New();
    const std::wstring path = folder.File(L"held.pptx");
    Active().Call(L"SaveAs", {std::wstring_view{path}});
    EXPECT_FALSE(ReadWholeFile(path).empty());
    EXPECT_EQ(FailureOf([&] { WriteWholeFile(path, "x"); }), E_FAIL);
    Active().Call(L"Close");
    EXPECT_NO_THROW(WriteWholeFile(path, "x"));
}

TEST_F(ObjectsTest, FiresEventsToEverySinkUntilItIsUnadvised)
{
    const auto counter = MakeObject<EventCounter>();
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
    ASSERT_EQ(ComPtr<IDispatch>{Application().Get()}.As(&container), S_OK);
    ASSERT_EQ(container->FindConnectionPoint(kApplicationEventsId, point.GetAddressOf()), S_OK);
    ASSERT_EQ(point->Advise(static_cast<IDispatch*>(counter.Get()), &cookie), S_OK);

    session->New();
    session->New();
    Active().Call(L"SaveAs", {std::wstring_view{folder.File(L"x")}});
    Active().Call(L"Close");
    EXPECT_EQ(counter->seen, L"activate Presentation1;activate Presentation2;Presentation2;x.pptx;x.pptx;"
                             L"activate Presentation1;");
    ASSERT_EQ(point->Unadvise(cookie), S_OK);
    counter->seen.clear();
    session->New();
    EXPECT_EQ(counter->seen, L"");
}

TEST_F(ObjectsTest, RunsMacrosOfOpenPresentationsOnly)
{
    session->New();
    Application().Call(L"Run", {L"Presentation1!KRXEvents.KRXBeforeSave"});
    EXPECT_EQ(session->MacrosRun(), std::vector<std::wstring>{L"KRXEvents.KRXBeforeSave"});
    EXPECT_EQ(FailureOf([&] { Application().Call(L"Run", {L"Other!KRXEvents.KRXBeforeSave"}); }), kInvalidRequest);
    EXPECT_EQ(FailureOf([&] { Application().Call(L"Run", {L"Unknown"}); }), kInvalidRequest);
    EXPECT_EQ(FailureOf([&] { Application().Call(L"Run", {L"Bad"}); }), kInvalidRequest);
}

TEST_F(ObjectsTest, CommandBarsInsertBeforeAPositionAndDropAnEntryWithItsMenu)
{
    const Script bar = Application().Object(L"CommandBars", {}).Object(L"Item", {L"Menu Bar"});
    const Script file = bar.Object(L"Controls").Object(L"Item", {1L});
    EXPECT_EQ(file.Call(L"Id").Number(), 30002);
    const Script saveAs = bar.Object(L"FindControl", {1L, 748L, Value{}, Value{}, Value::OfBoolean(true)});
    const long after = saveAs.Call(L"Index").Number() + 1;
    const Script popup = file.Object(L"Controls").Object(L"Add", {10L, 1L, L"p", after, Value::OfBoolean(true)});
    popup.Put(L"Tag", L"T");
    const Script button = popup.Object(L"Controls").Object(L"Add", {1L});
    EXPECT_EQ(file.Object(L"Controls").Object(L"Item", {after}).Call(L"Tag").Text(), L"T");
    popup.Call(L"Delete");
    EXPECT_EQ(session->CommandBars().MenuBar().FindTag(L"T"), nullptr);
    EXPECT_EQ(file.Object(L"Controls").Call(L"Count").Number(), 6) << "other entries went with it";
    EXPECT_EQ(FailureOf([&] { button.Call(L"Index"); }), kInvalidRequest);
}

TEST_F(ObjectsTest, NothingLivesOnceEverythingIsReleased)
{
    session->New();
    AddProperty(L"Id", 1, 1L);
    Active().Call(L"Close");
    session->Release();
    EXPECT_EQ(ObjectCore::Living(), L"");
}

} // namespace
} // namespace host
