// What the player in any host asks of it.
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "base/Text.h"
#include "companion/AddInCommands.h"
#include "companion/ObjectModelStage.h"
#include "documents/Files.h"
#include "objects/AddInObjects.h"
#include "objects/Application.h"

namespace host
{
namespace
{

using Names = std::set<std::string>;

// An object that notes which members are asked for by name, of itself and of every object that it gives.
class Noting final : public corvane::ComObject<Noting, IDispatch>
{
public:
    Noting(ComPtr<IDispatch> object, Names& names) : m_object{std::move(object)}, m_names{names} {}

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override
    {
        m_names.insert(Narrow(*names));
        return m_object->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD kind, DISPPARAMS* arguments, VARIANT* result,
                        EXCEPINFO* exception, UINT* wrong) override
    {
        const HRESULT answered = m_object->Invoke(member, id, locale, kind, arguments, result, exception, wrong);
        if (SUCCEEDED(answered) && result != nullptr && result->vt == VT_DISPATCH && result->pdispVal != nullptr) {
            ComPtr<IDispatch> given;
            given.Attach(result->pdispVal);
            result->pdispVal = MakeObject<Noting>(given, m_names).Detach();
        }
        return answered;
    }

private:
    ComPtr<IDispatch> m_object;
    Names& m_names;
};

// The members that the page lists, as `Object.Member`.
Names Listed()
{
    std::string page = ReadWholeFile(PLAYERS_PAGE);
    page.erase(0, page.find("## What the player asks of the host"));
    page.erase(page.find("\n## "));
    Names names;
    const std::regex member{"`[A-Z][A-Za-z]+\\.([A-Z][A-Za-z]+)`"};
    for (std::sregex_iterator at{page.begin(), page.end(), member}; at != std::sregex_iterator{}; ++at)
        names.insert((*at)[1]);
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
    corvane::companion::ObjectModelStage stage{corvane::LateBound{MakeObject<Noting>(&session.Application(), asked)},
                                               folder.Path(), report};
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
    EXPECT_EQ(asked, Listed());
}

} // namespace
} // namespace host
