#include "objects/DocumentProperties.h"

#include <algorithm>

#include "automation/OfficeInterfaces.h"
#include "automation/Text.h"
#include "objects/Collections.h"
#include "objects/PropertyValue.h"
#include "objects/Session.h"

namespace host
{
namespace
{

std::vector<CustomProperty>& PropertiesOf(DocumentObject& document, PropertySet set)
{
    return set == PropertySet::BuiltIn ? document.File().BuiltIn() : document.File().Custom();
}

CustomProperty* FindProperty(std::vector<CustomProperty>& properties, const std::string& name)
{
    const std::wstring wanted = Widen(name);
    const auto found = std::ranges::find_if(properties, [&](const CustomProperty& property) {
        return ::CompareStringOrdinal(Widen(property.name).c_str(), -1, wanted.c_str(), -1, TRUE) == CSTR_EQUAL;
    });
    return found == properties.end() ? nullptr : &*found;
}

CustomProperty& ExistingProperty(std::vector<CustomProperty>& properties, const std::string& name)
{
    if (CustomProperty* found = FindProperty(properties, name)) return *found;
    throw Error{E_INVALIDARG, {}, L"There is no document property named " + Widen(name) + L"."};
}

void MarkChanged(DocumentObject& document)
{
    Session& session = document.Owner();
    if (session.Settings().MajorVersion() <= session.Facts().lastMarkingVersion) document.File().SetSaved(false);
    session.Changed();
}

} // namespace

DocumentPropertiesObject::DocumentPropertiesObject(DocumentObject* document, PropertySet set)
    : AutomationObject{L"DocumentProperties", kDocumentPropertiesId}, m_document{document}, m_set{set}
{}

std::span<const Member> DocumentPropertiesObject::Members() const
{
    using C = DocumentPropertiesObject;
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&C::Item>},
        {4, L"Count", kGet, Answer<&C::Count>},
        {5, L"Add", kMethod, Answer<&C::Add>},
    };
    return kMembers;
}

std::vector<CustomProperty>& DocumentPropertiesObject::Properties() { return PropertiesOf(*m_document.Get(), m_set); }

Variant DocumentPropertiesObject::Item(const Arguments& arguments)
{
    const Variant index = arguments.At(0);
    const CustomProperty& property = index.Type() == VT_BSTR
                                         ? ExistingProperty(Properties(), Narrow(index.Text()))
                                         : Properties()[ItemPosition(index, Properties().size()) - 1];
    return Variant{MakeObject<DocumentPropertyObject>(m_document.Get(), m_set, property.name).Get()};
}

Variant DocumentPropertiesObject::Count(const Arguments&) { return Variant{static_cast<long>(Properties().size())}; }

Variant DocumentPropertiesObject::Add(const Arguments& arguments)
{
    const std::string name = Narrow(arguments.At(0).Text());
    if (m_set == PropertySet::BuiltIn) throw Error{E_FAIL, {}, L"A built-in property cannot be added."};
    if (arguments.At(1).Boolean()) throw Error{E_NOTIMPL, {}, L"Linked properties are not offered."};
    if (name.empty() || FindProperty(Properties(), name))
        throw Error{E_INVALIDARG, {}, L"The property name is empty or exists already."};
    m_document->File().CheckEditable();
    const long type = arguments.Has(2) ? arguments.At(2).Number() : 0;
    if (type < 1 || type > 5) throw Error{E_INVALIDARG, {}, L"Unknown property type."};

    Properties().push_back(FromValue(name, static_cast<PropertyType>(type), arguments.At(3)));
    MarkChanged(*m_document.Get());
    return Variant{MakeObject<DocumentPropertyObject>(m_document.Get(), m_set, name).Get()};
}

DocumentPropertyObject::DocumentPropertyObject(DocumentObject* document, PropertySet set, std::string name)
    : AutomationObject{L"DocumentProperty", kDocumentPropertyId}, m_document{document}, m_set{set}, m_name{
                                                                                                        std::move(name)}
{}

std::span<const Member> DocumentPropertyObject::Members() const
{
    using P = DocumentPropertyObject;
    static constexpr Member kMembers[] = {
        {0, L"Value", kGetPut, Answer<&P::ValueOf>},
        {2, L"Delete", kMethod, Answer<&P::Delete>},
        {3, L"Name", kGet, Answer<&P::GetName>},
        {5, L"Type", kGet, Answer<&P::GetType>},
    };
    return kMembers;
}

CustomProperty& DocumentPropertyObject::Property()
{
    return ExistingProperty(PropertiesOf(*m_document.Get(), m_set), m_name);
}

Variant DocumentPropertyObject::GetName(const Arguments&) { return Variant{Widen(Property().name)}; }
Variant DocumentPropertyObject::GetType(const Arguments&) { return Variant{static_cast<long>(Property().type)}; }

Variant DocumentPropertyObject::ValueOf(const Arguments& arguments)
{
    CustomProperty& property = Property();
    if (!arguments.IsPut()) return ToValue(property);
    m_document->File().CheckEditable();
    property = FromValue(property.name, property.type, arguments.At(0));
    MarkChanged(*m_document.Get());
    return {};
}

Variant DocumentPropertyObject::Delete(const Arguments&)
{
    if (m_set == PropertySet::BuiltIn) throw Error{E_FAIL, {}, L"A built-in property cannot be deleted."};
    m_document->File().CheckEditable();
    auto& properties = PropertiesOf(*m_document.Get(), m_set);
    const std::string name = Property().name;
    std::erase_if(properties, [&](const CustomProperty& property) { return property.name == name; });
    MarkChanged(*m_document.Get());
    return {};
}

} // namespace host
