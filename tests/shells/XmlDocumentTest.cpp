// Answers parsed by each version of the platform's parser.
#include "OfferedClass.h"

#include "platform/Error.h"
#include "platform/XmlDocument.h"

#include <gtest/gtest.h>
#include <optional>

using namespace corvane;

namespace
{

constexpr CLSID kParser4 = {0x88D969C0, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}};
constexpr CLSID kParser6 = {0x88D96A05, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}};
constexpr CLSID kParser3 = {0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

// The parsers that the machine lacks: the first so many of 4.0, 6.0, 3.0.
class Parser : public testing::TestWithParam<int>
{
protected:
    Parser()
    {
        if (GetParam() > 0) m_no4.emplace(kParser4);
        if (GetParam() > 1) m_no6.emplace(kParser6);
        if (GetParam() > 2) m_no3.emplace(kParser3);
    }

    Apartment m_apartment;
    std::optional<OfferedClass> m_no4;
    std::optional<OfferedClass> m_no6;
    std::optional<OfferedClass> m_no3;
};

TEST_P(Parser, SelectsByXPathWithinNamespaces)
{
    XmlDocument document;
    ASSERT_TRUE(document.Load(L"<x xmlns:z='#RowsetSchema'><z:row n='1'/><row/><z:row n='2'/></x>",
                              L"xmlns:z='#RowsetSchema'"));
    EXPECT_EQ(document.Select(L"//z:row[position()=last()]").size(), 1U) << "a predicate of XPath only";
    EXPECT_EQ(document.SelectFirst(L"//z:row[@n > 1]").Text(L"n"), L"2");
    EXPECT_TRUE(!m_no4 || m_no4->TimesAsked() == 1) << "the first choice is tried first";
}

TEST_P(Parser, TakesNoDocumentTypeNoEntityAndNothingFromElsewhere)
{
    for (const wchar_t* answer :
         {L"<!DOCTYPE x [<!ENTITY e 'text'>]><x a='&e;'/>", L"<!DOCTYPE x SYSTEM 'http://127.0.0.1:9/x.dtd'><x/>",
          L"<?xml version='1.0'?><!-- c --><!DOCTYPE x [<!ENTITY e SYSTEM 'file:///C:/windows/win.ini'>]><x>&e;</x>",
          L"<x>&unknown;</x>", L"no xml", L""})
    {
        XmlDocument document;
        EXPECT_FALSE(document.Load(answer)) << testing::PrintToString(std::wstring{answer});
        EXPECT_FALSE(document.SelectFirst(L"//x"));
    }
}

INSTANTIATE_TEST_SUITE_P(Versions, Parser, testing::Values(0, 1, 2));

using NoParser = Parser;
TEST_P(NoParser, IsAnErrorThatSaysSo)
{
    try {
        const XmlDocument document;
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Description(), L"The XML parser of the system cannot be created.");
    }
}
INSTANTIATE_TEST_SUITE_P(Versions, NoParser, testing::Values(3));

} // namespace
