// A document type is seen behind any comment, elements in each other behind any fit text, and nothing without markup is
// held back.
#include "platform/XmlScreening.h"
#include "Input.h"

void Fuzz(Input& input)
{
    const std::wstring text = input.Rest();
    const bool isFit = corvane::IsFitToParse(text);
    if (text.find(L'<') == std::wstring::npos) Require(isFit);
    if (text.find(L"-->") == std::wstring::npos)
        Require(!corvane::IsFitToParse(L"<?xml version='1.0'?><!--" + text + L"--><!DOCTYPE a><a/>"));
    std::wstring deep;
    for (int level = 0; level < 257; ++level)
        deep += L"<a>";
    if (isFit) Require(!corvane::IsFitToParse(text + deep));
}
