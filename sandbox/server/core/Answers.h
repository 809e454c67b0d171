// The kinds of answers: text, XML, pages, errors and rowsets.
#pragma once

#include "core/Http.h"
#include "core/ServiceError.h"

#include <initializer_list>
#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

namespace server
{

using Row = std::vector<std::pair<const char*, std::string>>;

[[nodiscard]] Answer TextAnswer(std::string text);
[[nodiscard]] Answer XmlAnswer(const pugi::xml_document& document);
[[nodiscard]] Answer HtmlAnswer(const pugi::xml_document& page);
[[nodiscard]] Answer ErrorAnswer(const ServiceError& error);
[[nodiscard]] Answer RowsetAnswer(const std::vector<Row>& rows);

// Appends an element with these attributes. Control characters that XML does not know are left out of the values.
pugi::xml_node AppendElement(pugi::xml_node parent, const char* name, const Row& attributes);

[[nodiscard]] std::string TruthText(bool value);

} // namespace server
