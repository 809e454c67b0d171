#include "platform/XmlProlog.h"

#include <gtest/gtest.h>

namespace corvane
{

struct PrologCase
{
    const char* name;
    const wchar_t* text;
    bool expected;
};

TEST(XmlProlog, TellsADocumentTypeFromWhatMayStandBesideIt)
{
    constexpr PrologCase kCases[] = {
        {"AtTheStart", L"<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>", true},
        {"BehindTheDeclaration", L"<?xml version='1.0'?>\r\n<!DOCTYPE a SYSTEM 'http://host/a.dtd'><a/>", true},
        {"BehindAByteOrderMark", L"\xFEFF<!DOCTYPE a><a/>", true},
        {"BehindAComment", L"<!-- a > b --><!DOCTYPE a><a/>", true},
        {"BehindSeveral", L"<?a?><!----><?b <x> ?>\n<!-- c --> <!DOCTYPE a><a/>", true},
        {"BehindACommentThatBeginsLikeAnEnd", L"<!---><b> --><!DOCTYPE a><a/>", true},
        {"BehindAnInstructionThatBeginsLikeAnEnd", L"<?><b> ?><!DOCTYPE a><a/>", true},
        {"InLowerCase", L"<!doctype a><a/>", true},
        {"InAComment", L"<!-- <b> <!DOCTYPE a> --><a/>", false},
        {"InAnInstruction", L"<?a <b> <!DOCTYPE a> ?><a/>", false},
        {"BehindTheRoot", L"<a><!DOCTYPE a></a>", false},
        {"InCharacterData", L"<a><![CDATA[<!DOCTYPE a>]]></a>", false},
        {"CommentWithoutEnd", L"<!-- <!DOCTYPE a>", false},
        {"InstructionWithoutEnd", L"<?xml <!DOCTYPE a>", false},
        {"PlainXml", L"<?xml version='1.0'?><a/>", false},
        {"PlainText", L"True", false},
        {"Nothing", L"", false},
    };
    for (const auto& item : kCases)
        EXPECT_EQ(DeclaresDocumentType(item.text), item.expected) << item.name;
}

} // namespace corvane
