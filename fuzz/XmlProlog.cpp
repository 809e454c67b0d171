// A document type is seen behind any prolog, and never where there is no declaration.
#include "platform/XmlProlog.h"
#include "Input.h"

void Fuzz(Input& input)
{
    const std::wstring text = input.Rest();
    const bool declares = corvane::DeclaresDocumentType(text);
    if (text.find(L"<!") == std::wstring::npos) Require(!declares);
    if (text.find(L"-->") == std::wstring::npos)
        Require(corvane::DeclaresDocumentType(L"<?xml version='1.0'?><!--" + text + L"--><!DOCTYPE a><a/>"));
}
