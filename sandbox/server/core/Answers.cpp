#include "core/Answers.h"

#include <algorithm>
#include <sstream>

namespace server
{

namespace
{

std::string WithoutControls(std::string text)
{
    std::erase_if(text, [](char c) { return c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r'; });
    return text;
}

std::string Written(const char* firstLine, const pugi::xml_document& document)
{
    std::ostringstream out;
    out << firstLine << '\n';
    document.save(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return out.str();
}

} // namespace

Answer TextAnswer(std::string text) { return {.body = std::move(text)}; }

Answer XmlAnswer(const pugi::xml_document& document)
{
    return {.contentType = "text/xml; charset=utf-8",
            .body = Written(R"(<?xml version="1.0" encoding="utf-8"?>)", document)};
}

Answer HtmlAnswer(const pugi::xml_document& page)
{
    return {.contentType = "text/html; charset=utf-8", .body = Written("<!DOCTYPE html>", page)};
}

Answer ErrorAnswer(const ServiceError& error)
{
    pugi::xml_document document;
    AppendElement(
        document.root(), "error",
        {{"number", std::to_string(error.Number())}, {"source", error.Source()}, {"description", error.what()}});
    return XmlAnswer(document);
}

Answer RowsetAnswer(const std::vector<Row>& rows)
{
    pugi::xml_document document;
    const auto root = AppendElement(document.root(), "xml",
                                    {{"xmlns:s", "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882"},
                                     {"xmlns:rs", "urn:schemas-microsoft-com:rowset"},
                                     {"xmlns:z", "#RowsetSchema"}});
    const auto data = AppendElement(root, "rs:data", {});
    for (const auto& row : rows)
        AppendElement(data, "z:row", row);
    return XmlAnswer(document);
}

pugi::xml_node AppendElement(pugi::xml_node parent, const char* name, const Row& attributes)
{
    auto element = parent.append_child(name);
    for (const auto& [attribute, value] : attributes)
        element.append_attribute(attribute).set_value(WithoutControls(value).c_str());
    return element;
}

std::string TruthText(bool value) { return value ? "True" : "False"; }

} // namespace server
