#include "platform/XmlScreening.h"

#include <gtest/gtest.h>
#include <tuple>

#include <string>

namespace corvane
{

TEST(XmlScreening, LeavesOutDocumentTypesAndWhatTakesAParserTooLong)
{
    constexpr std::tuple<const char*, const wchar_t*, bool> kCases[] = {
        {"AtTheStart", L"<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", false},
        {"BehindAByteOrderMark", L"\xFEFF<!DOCTYPE a><a/>", false},
        {"BehindAComment", L"<!-- a > b --><!DOCTYPE a><a/>", false},
        {"BehindSeveral", L"<?a?><!----><?b <x> ?>\n<!-- c --> <!DOCTYPE a><a/>", false},
        {"BehindACommentThatBeginsLikeAnEnd", L"<!---><b> --><!DOCTYPE a><a/>", false},
        {"BehindAnInstructionThatBeginsLikeAnEnd", L"<?><b> ?><!DOCTYPE a><a/>", false},
        {"BehindAnAttributeWithAnEndMark", L"<a b='>'/><!DOCTYPE a>", false},
        {"InAComment", L"<!-- <b> <!DOCTYPE a> --><a/>", true},
        {"InAnInstruction", L"<?a <b> <!DOCTYPE a> ?><a/>", true},
        {"InCharacterData", L"<a><![CDATA[<!DOCTYPE a>]]></a>", true},
        {"InAnAttribute", L"<a b='\"><!DOCTYPE a>' c=\"'\"/>", true},
        {"CommentWithoutEnd", L"<!-- <a/>", false},
        {"TagWithoutEnd", L"<a b='c", false},
        {"PlainXml", L"<?xml version='1.0'?><a/>", true},
        {"PlainText", L"True", true},
        {"Nothing", L"", true},
    };
    for (const auto& [name, text, expected] : kCases)
        EXPECT_EQ(IsFitToParse(text), expected) << name;
    std::wstring row = L"<a";
    for (int attribute = 0; attribute < 4096; ++attribute)
        row += L" a=''";
    EXPECT_TRUE(IsFitToParse(row + L"/>" + row + L"/>"));
    EXPECT_FALSE(IsFitToParse(row + L" b='>'/>"));
    std::wstring deep = L"</a>"; // refused by any parser, and no room for another level
    for (int level = 0; level < 256; ++level)
        deep += L"<d></d><a b='/>'><c/><!--/><b>-->";
    EXPECT_TRUE(IsFitToParse(deep));
    EXPECT_FALSE(IsFitToParse(deep + L"<a>"));
}

} // namespace corvane
