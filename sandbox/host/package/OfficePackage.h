#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "package/CustomProperty.h"
#include "package/Zip.h"

namespace host
{

// What the main part of a presentation package declares itself to be.
enum class PackageKind
{
    Presentation,
    MacroPresentation,
    Template,
    MacroTemplate,
    Show,
    MacroShow,
    AddIn,
};

// A presentation in the package format. Parts that it does not understand stay as they were read.
class OfficePackage
{
public:
    // A presentation of one title slide.
    static OfficePackage New(std::string_view title, std::string_view author);

    // Throws std::runtime_error when the bytes are no presentation package.
    static OfficePackage Parse(std::string_view bytes);

    [[nodiscard]] std::string Write() const { return m_zip.Write(); }

    [[nodiscard]] std::vector<CustomProperty> CustomProperties() const;
    void SetCustomProperties(const std::vector<CustomProperty>& properties);

    // A core property by its element: "dc:creator", "dc:title", "dc:subject", "cp:keywords", "dc:description".
    [[nodiscard]] std::string CoreProperty(std::string_view element) const;
    void SetCoreProperty(std::string_view element, std::string_view value);

    // The text of the first slide's title, or an empty text.
    [[nodiscard]] std::string SlideTitle() const;

    void SetKind(PackageKind kind);

    [[nodiscard]] const Zip& Parts() const { return m_zip; }

private:
    explicit OfficePackage(Zip zip) : m_zip{std::move(zip)} {}

    [[nodiscard]] std::string PartOfRelation(std::string_view typeEnd) const;
    void AddRelation(std::string_view type, std::string_view target);
    void SetContentType(std::string_view part, std::string_view type);

    Zip m_zip;
};

// The parts of the smallest presentation: one title slide with its layout, master and theme.
[[nodiscard]] Zip NewPresentationParts(std::string_view title, std::string_view author);

} // namespace host
