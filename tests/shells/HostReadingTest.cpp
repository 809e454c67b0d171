// What the add-in reads of a host's document, and of the settings beside the library.
#include "HostTest.h"
#include "OfferedClass.h"

#include "platform/BinaryStream.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"
#include "shared/ClientEvents.h"
#include "shared/DocumentProperties.h"
#include "shared/HostDocument.h"
#include "support/CCustomNames.h"
#include "support/Settings.h"

using namespace corvane;
using namespace std::chrono_literals;

namespace
{

// A host, its document, their properties and each of these in one; the value of a property is the number of its
// reading.
class Readings final : public host::AutomationObject<IDispatch>
{
public:
    Readings() : AutomationObject{L"Readings", kMembers, IID_IDispatch} {}

    std::vector<std::wstring> names;

private:
    static const host::Member kMembers[6];

    Readings* Item(const host::Arguments& arguments)
    {
        names.push_back(arguments.At(0).Text());
        return this;
    }
};

const host::Member Readings::kMembers[] = {
    {1, L"Name", host::kGet, host::Answer<[](Readings&) { return L"Microsoft PowerPoint"; }>},
    {2, L"Version", host::kGet, host::Answer<[](Readings&) { return L"16.0"; }>},
    {3, L"ActivePresentation", host::kGet, host::Answer<[](Readings& own) { return &own; }>},
    {4, L"CustomDocumentProperties", host::kGet, host::Answer<[](Readings& own) { return &own; }>},
    {5, L"Item", host::kEither, host::Answer<&Readings::Item>},
    {6, L"Value", host::kGet, host::Answer<[](Readings& own) { return static_cast<long>(own.names.size()); }>},
};

TEST(Binding, IsReadInTheOrderOfTheInterface)
{
    const Apartment apartment;
    const auto readings = host::MakeObject<Readings>();
    const DocumentBinding binding = ReadBinding(HostDocument{LateBound{ComPtr<IDispatch>{readings.Get()}}});
    EXPECT_EQ(readings->names, (std::vector<std::wstring>{
                                   L"KRX_SYS_Server", L"KRX_SYS_ProjectID", L"KRX_SYS_DeliverableID",
                                   L"KRX_SYS_GateDocumentID", L"KRX_SYS_ActivityID", L"KRX_SYS_RelatedFileID",
                                   L"HALVEX_MSExcelReportID", L"KRX_SYS_ProjectReport", L"KRX_SYS_TemplateLibraryID"}));
    EXPECT_EQ(binding.server, L"") << "1 is no address";
    EXPECT_EQ((std::vector{binding.projectId, binding.deliverableId, binding.gateDocumentId, binding.activityId,
                           binding.relatedFileId, binding.excelReportId, binding.templateLibraryId}),
              (std::vector{2, 3, 4, 5, 6, 7, 9}));
    EXPECT_TRUE(binding.projectReport);
}

class Writing : public host::test::HostTest
{
protected:
    LateBound NewDocument(const char* hostName, const wchar_t* version)
    {
        Start(hostName, version);
        session->New();
        m_document = HostDocument{Application()};
        m_document.Active().Call(L"SaveAs", folder.File(L"a"));
        return m_document.Active();
    }

    Apartment m_apartment;
    HostDocument m_document;
};

TEST_F(Writing, OfABindingKeepsTypesAndPutsAllBackWhereOneValueIsRefused)
{
    const LateBound properties = NewDocument("word", L"16.0").Object(L"CustomDocumentProperties");
    constexpr std::int32_t kDate = 3;
    properties.Call(L"Add", L"KRX_SYS_ProjectID", false, kPropertyText, L"7");
    properties.Call(L"Add", L"KRX_SYS_GateDocumentID", false, kDate, 1);
    DocumentBinding binding{{.projectId = 12, .gateDocumentId = 1 << 30}, L"http://h"}; // beyond all dates
    EXPECT_TRUE(Catch([&] { SetBindingProperties(m_document, binding); }));
    EXPECT_EQ(GetCustomProperty(m_document, L"KRX_SYS_ProjectID"), L"7");
    EXPECT_EQ(properties.Number(L"Count"), 2);
    binding.gateDocumentId = 2;
    SetBindingProperties(m_document, binding);
    EXPECT_EQ(GetCustomProperty(m_document, L"KRX_SYS_ProjectID"), L"12");
    EXPECT_EQ(properties.Object(L"Item", L"KRX_SYS_ProjectID").Number(L"Type"), kPropertyText);
}

TEST_F(Writing, CountsAsAChangeInExcelFromVersion12On)
{
    const auto isSaved = [&](const char* hostName, const wchar_t* version) {
        const LateBound document = NewDocument(hostName, version);
        SetBindingProperties(m_document, {});
        return document.Number(L"Saved") != 0;
    };
    EXPECT_FALSE(isSaved("excel", L"12.0"));
    EXPECT_TRUE(isSaved("word", L"12.0")); // its own business
}

class DocumentSwitch : public host::test::HostTest
{
protected:
    DocumentSwitch()
    {
        g_oCustomNames = std::make_unique<CCustomNames>(nullptr);
        g_oCustomNames->GetAllCustomNames().Set(L"EnableOFFIClientEvents", L"1");
    }
    ~DocumentSwitch() override { g_oCustomNames.reset(); }

    // With the document's own switch set to the value, or without one.
    bool Enabled(const char* hostName, const wchar_t* version, const wchar_t* value)
    {
        Start(hostName, version);
        session->New();
        const HostDocument document{LateBound{ComPtr<IDispatch>{&session->Application()}}};
        constexpr std::int32_t kText = 4;
        if (value != nullptr)
            document.Active()
                .Object(L"CustomDocumentProperties")
                .Call(L"Add", L"KRX_SYS_DoEvents", false, kText, value);
        return ClientEventsEnabled(document);
    }

    Apartment m_apartment;
};

TEST_F(DocumentSwitch, ComesBeforeTheHostsRule)
{
    EXPECT_TRUE(Enabled("powerpoint", L"16.0", nullptr));
    EXPECT_FALSE(Enabled("powerpoint", L"16.0", L"False"));
    EXPECT_FALSE(Enabled("powerpoint", L"16.0", L"perhaps"));
    EXPECT_FALSE(Enabled("word", L"10.0", nullptr));
    EXPECT_TRUE(Enabled("word", L"10.0", L"True"));
    g_oCustomNames->GetAllCustomNames().Set(L"EnableOFFIClientEvents", L" 1");
    EXPECT_FALSE(Enabled("word", L"10.0", L"True"));
}

TEST(SettingsBesideTheLibrary, GiveTheTimeOutInSecondsAndNoneIsFiveMinutesUnlessAPolicyDecides)
{
    const Apartment apartment;
    const host::test::TemporaryFolder folder;
    const auto timeoutOf = [&](const std::string& value) {
        const std::string text = "<settings><setting name='RequestTimeoutSeconds' value='" + value + "'/></settings>";
        WriteFile(folder.File(L"settings.config"), std::as_bytes(std::span{text}));
        return Settings::ReadFrom(folder.Path()).requestTimeout;
    };
    EXPECT_EQ(Settings::ReadFrom(folder.Path()).requestTimeout, 300s);
    EXPECT_EQ(timeoutOf("45"), 45s);
    EXPECT_EQ(timeoutOf("0"), 0s);
    EXPECT_EQ(timeoutOf("0.5"), 1s);
    for (const char* unusable : {"-1", "soon", "", "'/><"})
        EXPECT_EQ(timeoutOf(unusable), 300s) << unusable;
    constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex\\Corvane";
    Registry::WriteNumber(kPolicies, L"RequestTimeoutSeconds", 20);
    EXPECT_EQ(timeoutOf("45"), 20s);
    Registry::DeleteTree(kPolicies);
}

TEST(Errors, NameTheProcedureThatRaisedThem)
{
    const Apartment apartment;
    const std::pair<const wchar_t*, std::function<void()>> cases[] = {
        {L"LateBound.Create", [] { static_cast<void>(LateBound::Create(L"Corvane.NoClass")); }},
        {L"LateBound.Running", [] { static_cast<void>(LateBound::Running(L"Corvane.NoClass")); }},
        {L"BinaryStream.Write", [] { BinaryStream{}.Write(Variant{L"no bytes"}); }},
        {L"CustomNames", [] { static_cast<void>(CustomName(L"Corvane")); }},
        {L"Registry.OpenOrCreate", [] { Registry::CreateKey(std::wstring(300, L'k')); }},
    };
    for (const auto& [source, raise] : cases) {
        const auto error = Catch(raise);
        ASSERT_TRUE(error) << testing::PrintToString(source);
        EXPECT_EQ(error->Source(), source);
    }
}

} // namespace
