#include "shared/DocumentProperties.h"

#include "platform/Procedure.h"
#include "shared/HostDocument.h"
#include "shared/HostTraits.h"
#include "support/Conversions.h"
#include "support/ServerRules.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace corvane
{
namespace
{

LateBound PropertiesOf(const HostDocument& document) { return document.Active().Object(L"CustomDocumentProperties"); }

// The properties of a binding as they were: put back unless the whole binding is written.
class BindingBackup
{
public:
    explicit BindingBackup(LateBound properties) : m_properties{std::move(properties)}
    {
        Keep(kServerProperty);
        for (const auto& property : kBindingProperties)
            Keep(property.name);
    }
    BindingBackup(const BindingBackup&) = delete;
    BindingBackup& operator=(const BindingBackup&) = delete;
    ~BindingBackup()
    {
        for (const auto& [name, value] : m_old)
            PutBack(name, value);
    }
    void Drop() noexcept { m_old.clear(); }

private:
    void Keep(const wchar_t* name)
    {
        std::optional<Variant> value;
        Ignoring([&] { value = m_properties.Object(L"Item", name).Property(L"Value"); });
        m_old.emplace_back(name, std::move(value));
    }
    void PutBack(const wchar_t* name, const std::optional<Variant>& value) const noexcept
    {
        Ignoring([&] {
            const LateBound property = m_properties.Object(L"Item", name);
            value ? property.Put(L"Value", value->Copy()) : static_cast<void>(property.Call(L"Delete"));
        });
    }

    LateBound m_properties;
    std::vector<std::pair<const wchar_t*, std::optional<Variant>>> m_old;
};

} // namespace

std::wstring GetCustomProperty(const HostDocument& document, const std::wstring& sName)
{
    const ProcedureScope scope{L"SharedCode.GetCustomProperty"};
    std::wstring text;
    Ignoring([&] { text = PropertiesOf(document).Object(L"Item", sName).Text(L"Value"); });
    return text;
}

bool CustomPropertyExists(const HostDocument& document, const std::wstring& sName)
{
    const ProcedureScope scope{L"SharedCode.CustomPropertyExists"};
    return !Catch([&] { static_cast<void>(PropertiesOf(document).Object(L"Item", sName).Text(L"Name")); });
}

void SetCustomProperty(const LateBound& oProperties, const std::wstring& sName, const Variant& vValue,
                       std::int32_t lType, const HostDocument& document)
{
    const ProcedureScope scope{L"SharedCode.SetCustomProperty"};
    bool found = false;
    const std::int32_t count = oProperties.Number(L"Count");
    for (std::int32_t index = 1; index <= count; ++index) {
        const LateBound property = oProperties.Object(L"Item", index);
        if (property.Text(L"Name") != sName) continue;
        property.Put(L"Value", vValue.Copy());
        found = true;
    }
    if (!found) oProperties.Call(L"Add", sName, false, lType, vValue.Copy());
    if (document.Traits() != nullptr && document.Version() >= document.Traits()->firstBlindToProperties)
        document.MarkChanged();
}

void SetBindingProperties(const HostDocument& document, const DocumentBinding& binding)
{
    const ProcedureScope scope{L"SharedCode.SetBindingProperties"};
    const LateBound properties = PropertiesOf(document);
    BindingBackup backup{properties};
    SetCustomProperty(properties, kServerProperty, WithoutCredentials(binding.server), kPropertyText, document);
    for (const auto& [name, id] : kBindingProperties)
        SetCustomProperty(properties, name, binding.*id, kPropertyNumber, document);
    backup.Drop();
}

void BindDocument(const HostDocument& document, const DocumentBinding& binding)
{
    if (!document.CanCarryProperties()) return;
    document.RequireNotFinal();
    SetBindingProperties(document, binding);
    document.MarkChanged();
}

DocumentBinding ReadBinding(const HostDocument& document)
{
    using Binding = DocumentBinding;
    Binding binding;
    const auto read = [&](std::int32_t Binding::*id) {
        const auto* property = std::ranges::find(kBindingProperties, id, &BindingProperty::id);
        binding.*id = ToLongSafe(GetCustomProperty(document, property->name));
    };
    // The interface's order, which is not that of writing.
    constexpr std::int32_t Binding::*kFirst[] = {&Binding::projectId,      &Binding::deliverableId,
                                                 &Binding::gateDocumentId, &Binding::activityId,
                                                 &Binding::relatedFileId,  &Binding::excelReportId};
    binding.server = DocumentServer(GetCustomProperty(document, kServerProperty));
    std::ranges::for_each(kFirst, read);
    binding.projectReport = ToBooleanSafe(GetCustomProperty(document, kProjectReportProperty));
    read(&Binding::templateLibraryId);
    return binding;
}

} // namespace corvane
