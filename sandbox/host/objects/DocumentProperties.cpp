#include "objects/DocumentProperties.h"

#include "automation/OfficeInterfaces.h"
#include "objects/Collections.h"

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
    const auto found = std::ranges::find_if(properties, [wanted = Widen(name)](const CustomProperty& property) {
        return SameText(Widen(property.name), wanted);
    });
    return found == properties.end() ? nullptr : &*found;
}

void MarkChanged(DocumentObject& document)
{
    Session& session = document.Owner();
    if (session.Version().major <= session.Facts().lastMarkingVersion) document.File().SetSaved(false);
    session.Changed();
}

Variant DateOf(const SYSTEMTIME& time)
{
    DATE date = 0;
    return ::SystemTimeToVariantTime(const_cast<SYSTEMTIME*>(&time), &date) ? Variant::OfDate(date) : Variant{};
}

std::string TextOfDate(DATE date)
{
    SYSTEMTIME time{};
    if (!::VariantTimeToSystemTime(date, &time)) throw Error{DISP_E_TYPEMISMATCH, {}, L"Type mismatch."};
    return FromSystemTime(time);
}

// How Automation holds a value of the type.
VARTYPE KindOf(PropertyType type)
{
    static constexpr VARTYPE kKinds[] = {VT_EMPTY, VT_I4, VT_BOOL, VT_DATE, VT_BSTR, VT_R8}; // by Office's numbers
    return kKinds[static_cast<std::size_t>(type)];
}

// The value converted to the type. Throws Error when it does not convert.
std::string PackageText(PropertyType type, const Variant& value)
{
    if (type == PropertyType::Text) return Narrow(value.Text());
    if (type == PropertyType::Boolean) return value.Boolean() ? "true" : "false";
    const Variant converted = value.As(KindOf(type));
    return type == PropertyType::Date ? TextOfDate(converted.Get().date) : Narrow(converted.As(VT_BSTR).Text());
}

} // namespace

Variant ToValue(const CustomProperty& property)
{
    Variant text{Widen(property.value)};
    Variant value;
    corvane::Ignoring([&] {
        if (property.type != PropertyType::Date)
            value = text.As(KindOf(property.type));
        else if (const auto time = ToSystemTime(property.value))
            value = DateOf(*time);
    });
    // A file may hold a value that its type does not allow: its text is all there is to show.
    return value.IsMissing() ? std::move(text) : std::move(value);
}

DocumentPropertiesObject::DocumentPropertiesObject(DocumentObject* document, PropertySet set)
    : AutomationObject{L"DocumentProperties", kMembers, kDocumentPropertiesId}, m_document{document}, m_set{set}
{}

const Member DocumentPropertiesObject::kMembers[] = {
    {0, L"Item", kEither, Answer<&DocumentPropertiesObject::Item>},
    {4, L"Count", kGet, Answer<[](const DocumentPropertiesObject& own) {
         return static_cast<long>(PropertiesOf(*own.m_document.Get(), own.m_set).size());
     }>},
    {5, L"Add", kMethod, Answer<&DocumentPropertiesObject::Add>},
};

ComPtr<IDispatch> DocumentPropertiesObject::Item(const Arguments& arguments)
{
    const auto property = ItemOf(PropertiesOf(*m_document.Get(), m_set), arguments.At(0),
                                 [](const CustomProperty& one) { return Widen(one.name); });
    return MakeObject<DocumentPropertyObject>(m_document.Get(), m_set, property.name);
}

ComPtr<IDispatch> DocumentPropertiesObject::Add(const Arguments& arguments)
{
    auto& properties = PropertiesOf(*m_document.Get(), m_set);
    const std::string name = Narrow(arguments.At(0).Text());
    if (m_set == PropertySet::BuiltIn) throw Error{E_FAIL, {}, L"A built-in property cannot be added."};
    if (arguments.At(1).Boolean()) throw Error{E_NOTIMPL, {}, L"Linked properties are not offered."};
    if (name.empty() || FindProperty(properties, name) != nullptr)
        throw Error{E_INVALIDARG, {}, L"The property name is empty or exists already."};
    m_document->File().CheckEditable();
    const long type = arguments.Has(2) ? arguments.At(2).Number() : 0;
    if (type < 1 || type > 5) throw Error{E_INVALIDARG, {}, L"Unknown property type."};

    const auto kind = static_cast<PropertyType>(type);
    properties.push_back({name, kind, PackageText(kind, arguments.At(3))});
    MarkChanged(*m_document.Get());
    return MakeObject<DocumentPropertyObject>(m_document.Get(), m_set, name);
}

DocumentPropertyObject::DocumentPropertyObject(DocumentObject* document, PropertySet set, std::string name)
    : AutomationObject{L"DocumentProperty", kMembers, kDocumentPropertyId},
      m_document{document}, m_set{set}, m_name{std::move(name)}
{}

const Member DocumentPropertyObject::kMembers[] = {
    {0, L"Value", kGetPut, Answer<&DocumentPropertyObject::Value>},
    {2, L"Delete", kMethod, Answer<&DocumentPropertyObject::Delete>},
    {3, L"Name", kGet, Answer<[](const DocumentPropertyObject& own) { return Widen(own.Property().name); }>},
    {5, L"Type", kGet,
     Answer<[](const DocumentPropertyObject& own) { return static_cast<long>(own.Property().type); }>},
};

CustomProperty& DocumentPropertyObject::Property() const
{
    CustomProperty* const found = FindProperty(PropertiesOf(*m_document.Get(), m_set), m_name);
    if (found != nullptr) return *found;
    throw Error{E_INVALIDARG, {}, L"There is no document property named " + Widen(m_name) + L"."};
}

Variant DocumentPropertyObject::Value(const Arguments& arguments)
{
    CustomProperty& property = Property();
    if (!arguments.IsPut()) return ToValue(property);
    m_document->File().CheckEditable();
    property.value = PackageText(property.type, arguments.At(0));
    MarkChanged(*m_document.Get());
    return {};
}

void DocumentPropertyObject::Delete()
{
    if (m_set == PropertySet::BuiltIn) throw Error{E_FAIL, {}, L"A built-in property cannot be deleted."};
    m_document->File().CheckEditable();
    std::erase_if(PropertiesOf(*m_document.Get(), m_set),
                  [name = Property().name](const CustomProperty& property) { return property.name == name; });
    MarkChanged(*m_document.Get());
}

} // namespace host
