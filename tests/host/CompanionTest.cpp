// What the player in any host asks of it.
#include <algorithm>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "base/Text.h"
#include "companion/AddInCommands.h"
#include "companion/ObjectModelStage.h"
#include "companion/Suitability.h"
#include "documents/Files.h"
#include "objects/AddInObjects.h"
#include "objects/Application.h"

namespace host
{
namespace
{

namespace player = corvane::player;
using corvane::companion::FindMisfit;
using Names = std::set<std::wstring>;

// The members that the page lists, as `Object.Member`.
Names Listed()
{
    std::string page = ReadWholeFile(PLAYERS_PAGE);
    page.erase(0, page.find("## What the player asks of the host"));
    page.erase(page.find("\n## "));
    Names names;
    const std::regex member{"`[A-Z][A-Za-z]+\\.([A-Z][A-Za-z]+)`"};
    for (std::sregex_iterator at{page.begin(), page.end(), member}; at != std::sregex_iterator{}; ++at)
        names.insert(Widen((*at)[1].str()));
    return names;
}

TEST(Companion, AsksOfItsHostForWhatThePageListsAndNothingElse)
{
    Names asked;
    Session session{{}};
    bool hasQuit = false;
    session.onQuit = [&] { hasQuit = true; };
    const auto addIn = MakeObject<ComAddInObject>(corvane::companion::kAddInProgId, L"");
    bool isSwitchedOff = false;
    addIn->onDisconnect = [&] { isSwitchedOff = true; };
    session.AddAddIn(addIn);
    const test::TemporaryFolder folder;
    corvane::companion::Report report{folder.Path()};
    corvane::companion::ObjectModelStage stage{corvane::LateBound{ComPtr<IDispatch>{&session.Application()}},
                                               folder.Path(), report};
    ObjectCore::NoteNames(&asked);
    stage.SetReady();
    EXPECT_EQ(stage.HostVersion(), 16);
    EXPECT_EQ(stage.AddInState(), L"failed");
    EXPECT_FALSE(stage.HasCommand(L"DelivAct"));
    stage.Set(L"author", L"Zoë");
    stage.New();
    EXPECT_EQ(std::ranges::find(session.Active()->File().BuiltIn(), "Author", &CustomProperty::name)->value, "Zoë");
    stage.SaveAs(folder.File(L"one.pptx"), 24);
    for (const wchar_t* text : {L"y", L"x"})
        stage.SetProperty(L"Node", text);
    stage.Save();
    stage.New();
    stage.Activate(L"one.pptx");
    EXPECT_EQ(stage.Property(L"Node"), L"x");
    stage.Close();
    stage.Set(L"document.readonly", L"true");
    stage.Open(folder.File(L"one.pptx"));
    EXPECT_EQ(stage.ActiveName(), L"one.pptx");
    EXPECT_TRUE(session.Active()->File().IsReadOnly());
    stage.DisconnectAddIns();
    EXPECT_TRUE(isSwitchedOff);
    EXPECT_THROW(static_cast<void>(stage.LastMail()), corvane::Error);
    stage.Quit();
    EXPECT_TRUE(hasQuit && session.OpenDocuments().empty());
    ObjectCore::NoteNames(nullptr);
    EXPECT_EQ(asked, Listed());
}

TEST(Companion, LeavesAloneWhatSomebodyElseHasOpened)
{
    Session session{{}};
    bool hasQuit = false;
    session.onQuit = [&] { hasQuit = true; };
    const test::TemporaryFolder folder;
    corvane::companion::Report report{folder.Path()};
    corvane::companion::ObjectModelStage stage{corvane::LateBound{ComPtr<IDispatch>{&session.Application()}},
                                               folder.Path(), report};
    stage.New();
    stage.SaveAs(folder.File(L"own.pptx"), 24);
    DocumentObject& others = session.New();
    others.File().SetSaved(false);
    EXPECT_TRUE(stage.HasOthers());
    EXPECT_THROW(stage.Save(), corvane::Error);
    EXPECT_THROW(stage.SetProperty(L"Node", L"x"), corvane::Error);
    EXPECT_THROW(stage.Close(), corvane::Error);
    stage.Press(L"DelivAct");
    stage.CallController(L"SaveGateDoc");
    EXPECT_EQ(stage.TakeFaults(),
              std::vector<std::wstring>(2, L"the active presentation is none that the player has opened"));
    stage.Quit();
    ASSERT_EQ(session.OpenDocuments().size(), 1U);
    EXPECT_TRUE(session.Active() == &others && !others.File().IsSaved() && !hasQuit);
    EXPECT_NE(ReadWholeFile(folder.File(L"player.txt")).find("left running: "), std::string::npos);
}

TEST(Companion, KnowsBeforehandWhatOnlyAStandInCanDo)
{
    const struct
    {
        const char* script;
        int version;
        player::Settings settings;
        std::wstring_view misfit;
    } cases[] = {
        {"new\nset patience 3\ncommand DelivAct\nquit", 16, {{"SERVER", "x"}, {"progress", "on"}}, L""},
        {"new\nset document.final true", 16, {}, L"set document.final true: "},
        {"new", 16, {{"outlook", "new"}}, L"set outlook \"new\": "},
        {"new\ncommand DelivAct", 11, {}, L"command DelivAct: "},
        {"set author x\nset document.readonly true\ndisconnect", 16, {{"author", ""}}, L""},
        {"new\nmail To \"x\"\nexit", 16, {}, L"mail To \"x\": "},
    };
    const auto rows = player::AllSteps();
    for (const auto& [script, version, settings, misfit] : cases) {
        const auto found = FindMisfit(player::ParseScript(script, settings, rows), settings, version);
        EXPECT_TRUE(misfit.empty() ? found.empty() : found.starts_with(misfit)) << script << ": " << Narrow(found);
    }
}

} // namespace
} // namespace host
