// The properties of an open document as programs reach them.
#pragma once

#include "objects/DocumentObject.h"

namespace host
{

// The property's value as Automation sees it, by its type: a number, Boolean, date, text or float.
[[nodiscard]] Variant ToValue(const CustomProperty& property);

// The built-in or the custom properties of a document.
class DocumentPropertiesObject final : public AutomationObject<IDispatch>
{
public:
    DocumentPropertiesObject(DocumentObject* document, PropertySet set);

    // By name, without regard to case, or by position.
    ComPtr<IDispatch> Item(const Arguments& arguments);

private:
    static const Member kMembers[3];

    ComPtr<IDispatch> Add(const Arguments& arguments);

    ComPtr<DocumentObject> m_document;
    PropertySet m_set;
};

// One property, found by its name each time: it fails once the property is deleted.
class DocumentPropertyObject final : public AutomationObject<IDispatch>
{
public:
    DocumentPropertyObject(DocumentObject* document, PropertySet set, std::string name);

private:
    static const Member kMembers[4];

    Variant Value(const Arguments& arguments);
    void Delete();

    [[nodiscard]] CustomProperty& Property() const;

    ComPtr<DocumentObject> m_document;
    PropertySet m_set;
    std::string m_name;
};

} // namespace host
