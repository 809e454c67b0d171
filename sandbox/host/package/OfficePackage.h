// Documents in the packages of Open XML.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/HostFacts.h"
#include "package/CustomProperty.h"
#include "package/Zip.h"

namespace host
{

// A document in the Open XML package format. Parts that it does not understand stay as they were read.
class OfficePackage
{
public:
    // The smallest package of this host: a title slide, a paragraph, a sheet.
    static OfficePackage New(HostKind host, std::string_view title, std::string_view author);

    // Throws std::runtime_error when the bytes are no such package.
    static OfficePackage Parse(std::string_view bytes);

    [[nodiscard]] std::string Write() const { return m_zip.Write(); }

    [[nodiscard]] std::vector<CustomProperty> CustomProperties() const;
    void SetCustomProperties(const std::vector<CustomProperty>& properties);

    // A core property by its element: "dc:creator", "dc:title", "dc:subject", "cp:keywords", "dc:description".
    [[nodiscard]] std::string CoreProperty(std::string_view element) const;
    void SetCoreProperty(std::string_view element, std::string_view value);

    // The text of the first slide's title, or an empty text.
    [[nodiscard]] std::string SlideTitle() const;

    // What the main part declares the package to be, as "...presentationml.template.main+xml".
    [[nodiscard]] std::string MainType() const;
    void SetMainType(std::string_view type);

    [[nodiscard]] const Zip& Parts() const { return m_zip; }

private:
    explicit OfficePackage(Zip zip) : m_zip{std::move(zip)} {}

    [[nodiscard]] std::string PartOfRelation(std::string_view typeEnd) const;
    void AddRelation(std::string_view type, std::string_view target);
    void SetContentType(std::string_view part, std::string_view type);

    Zip m_zip;
};

} // namespace host
