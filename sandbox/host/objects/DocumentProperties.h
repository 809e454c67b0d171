#pragma once

#include <string>

#include "objects/DocumentObject.h"

namespace host
{

enum class PropertySet
{
    BuiltIn,
    Custom,
};

// The built-in or the custom properties of a document.
class DocumentPropertiesObject final : public AutomationObject<IDispatch>
{
public:
    DocumentPropertiesObject(DocumentObject* document, PropertySet set);

    [[nodiscard]] std::span<const Member> Members() const override;

    // By name, without regard to case, or by position.
    Variant Item(const Arguments& arguments);

private:
    Variant Count(const Arguments&);
    Variant Add(const Arguments& arguments);

    [[nodiscard]] std::vector<CustomProperty>& Properties();

    ComPtr<DocumentObject> m_document;
    PropertySet m_set;
};

// One property, found by its name each time: it fails once the property is deleted.
class DocumentPropertyObject final : public AutomationObject<IDispatch>
{
public:
    DocumentPropertyObject(DocumentObject* document, PropertySet set, std::string name);

    [[nodiscard]] std::span<const Member> Members() const override;

private:
    Variant GetName(const Arguments&);
    Variant ValueOf(const Arguments& arguments);
    Variant GetType(const Arguments&);
    Variant Delete(const Arguments&);

    [[nodiscard]] CustomProperty& Property();

    ComPtr<DocumentObject> m_document;
    PropertySet m_set;
    std::string m_name;
};

} // namespace host
