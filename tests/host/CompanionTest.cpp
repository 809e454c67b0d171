// What the player in any host asks of it.
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
    session.AddAddIn(MakeObject<ComAddInObject>(corvane::companion::kAddInProgId, L""));
    const test::TemporaryFolder folder;
    corvane::companion::Report report{folder.Path()};
    corvane::companion::ObjectModelStage stage{corvane::LateBound{ComPtr<IDispatch>{&session.Application()}},
                                               folder.Path(), report};
    ObjectCore::NoteNames(&asked);
    stage.SetReady();
    EXPECT_EQ(stage.HostVersion(), 16);
    EXPECT_EQ(stage.AddInState(), L"failed");
    EXPECT_FALSE(stage.HasCommand(L"DelivAct"));
    stage.New();
    stage.SaveAs(folder.File(L"one.pptx"), 24);
    for (const wchar_t* text : {L"y", L"x"})
        stage.SetProperty(L"Node", text);
    stage.Save();
    stage.New();
    stage.Activate(L"one.pptx");
    EXPECT_EQ(stage.Property(L"Node"), L"x");
    stage.Close();
    stage.Open(folder.File(L"one.pptx"));
    EXPECT_EQ(stage.ActiveName(), L"one.pptx");
    EXPECT_THROW(static_cast<void>(stage.LastMail()), corvane::Error);
    stage.Quit();
    EXPECT_TRUE(hasQuit && session.OpenDocuments().empty());
    ObjectCore::NoteNames(nullptr);
    EXPECT_EQ(asked, Listed());
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
        {"disconnect", 16, {}, L"disconnect: "},
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
