#include "platform/XmlScreening.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane
{

struct ScreeningCase
{
    const char* name;
    const wchar_t* text;
    bool expected;
};

TEST(XmlScreening, LeavesOutDocumentTypesAndWhatTakesAParserTooLong)
{
    constexpr ScreeningCase kCases[] = {
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
    for (const auto& item : kCases)
        EXPECT_EQ(IsFitToParse(item.text), item.expected) << item.name;
    std::wstring row = L"<a";
    for (int attribute = 0; attribute < 4096; ++attribute)
        row += L" a=''";
    EXPECT_TRUE(IsFitToParse(row + L"/>" + row + L"/>"));
    EXPECT_FALSE(IsFitToParse(row + L" b='>'/>"));
}

} // namespace corvane
