#include "documents/CompoundFile.h"

#include <cstring>
#include <map>

#include <ole2.h>
#include <propidl.h>
#include <wrl/client.h>

#include "automation/AutomationError.h"
#include "automation/PropertyValue.h"
#include "automation/Text.h"

namespace host
{
namespace
{

using Microsoft::WRL::ComPtr;

constexpr DWORD kStorageMode = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr PROPID kFirstUserId = 2;
constexpr wchar_t kFailed[] = L"The compound file could not be processed.";
constexpr char kSignature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

// The well-known sets; MinGW's import libraries lack the first.
constexpr FMTID kUserDefinedSet{0xD5CDD505, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};
constexpr FMTID kSummarySet{0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};

struct SummaryId
{
    const char* name;
    PROPID id;
};

constexpr SummaryId kSummaryIds[] = {
    {"Title", 2}, {"Subject", 3}, {"Author", 4}, {"Keywords", 5}, {"Comments", 6}, {"Last Author", 8},
};

ComPtr<ILockBytes> MemoryBytes(const std::string& bytes)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.empty() ? 1 : bytes.size());
    if (!memory) throw AutomationError{E_OUTOFMEMORY, kFailed};
    if (!bytes.empty()) {
        std::memcpy(::GlobalLock(memory), bytes.data(), bytes.size());
        ::GlobalUnlock(memory);
    }
    ComPtr<ILockBytes> lockBytes;
    ThrowIfFailed(::CreateILockBytesOnHGlobal(memory, TRUE, lockBytes.GetAddressOf()), kFailed);
    return lockBytes;
}

std::string BytesOf(ILockBytes& lockBytes)
{
    STATSTG stat{};
    ThrowIfFailed(lockBytes.Stat(&stat, STATFLAG_NONAME), kFailed);
    std::string bytes(static_cast<std::size_t>(stat.cbSize.QuadPart), '\0');
    ULONG read = 0;
    ThrowIfFailed(lockBytes.ReadAt({}, bytes.data(), static_cast<ULONG>(bytes.size()), &read), kFailed);
    bytes.resize(read);
    return bytes;
}

// Owns a PROPVARIANT.
struct StoredValue
{
    StoredValue() { ::PropVariantInit(&value); }
    StoredValue(const StoredValue&) = delete;
    StoredValue& operator=(const StoredValue&) = delete;
    ~StoredValue() { ::PropVariantClear(&value); }

    PROPVARIANT value;
};

void FillText(PROPVARIANT& value, const std::string& text)
{
    const std::wstring wide = Widen(text);
    const std::size_t size = (wide.size() + 1) * sizeof(wchar_t);
    value.pwszVal = static_cast<wchar_t*>(::CoTaskMemAlloc(size));
    if (!value.pwszVal) throw AutomationError{E_OUTOFMEMORY, kFailed};
    std::memcpy(value.pwszVal, wide.c_str(), size);
    value.vt = VT_LPWSTR;
}

void Fill(PROPVARIANT& value, const CustomProperty& property)
{
    const Value typed = ToValue(property);
    switch (property.type) {
    case PropertyType::Number:
        value.vt = VT_I4, value.lVal = typed.Number();
        break;
    case PropertyType::Boolean:
        value.vt = VT_BOOL, value.boolVal = typed.Boolean() ? VARIANT_TRUE : VARIANT_FALSE;
        break;
    case PropertyType::Float:
        value.vt = VT_R8, value.dblVal = typed.Float();
        break;
    case PropertyType::Date:
        value.vt = VT_DATE, value.date = typed.Get().date;
        break;
    case PropertyType::Text:
        FillText(value, property.value);
        break;
    }
}

void Read(const PROPVARIANT& value, CustomProperty& property)
{
    switch (value.vt) {
    case VT_I4:
        property = FromValue(property.name, PropertyType::Number, Value{value.lVal});
        break;
    case VT_BOOL:
        property = FromValue(property.name, PropertyType::Boolean, Value::OfBoolean(value.boolVal != VARIANT_FALSE));
        break;
    case VT_R8:
        property = FromValue(property.name, PropertyType::Float, Value{value.dblVal});
        break;
    case VT_DATE:
        property = FromValue(property.name, PropertyType::Date, Value::OfDate(value.date));
        break;
    case VT_LPWSTR:
        property.value = Narrow(value.pwszVal ? value.pwszVal : L"");
        break;
    case VT_LPSTR:
        property.value = value.pszVal ? value.pszVal : "";
        break;
    default:
        break;
    }
}

PROPSPEC ById(PROPID id)
{
    PROPSPEC spec{};
    spec.ulKind = PRSPEC_PROPID;
    spec.propid = id;
    return spec;
}

void Write(IPropertyStorage& set, PROPID id, const CustomProperty& property)
{
    StoredValue stored;
    Fill(stored.value, property);
    const PROPSPEC spec = ById(id);
    ThrowIfFailed(set.WriteMultiple(1, &spec, &stored.value, kFirstUserId), kFailed);
}

ComPtr<IPropertyStorage> CreateSet(IPropertySetStorage& sets, REFFMTID id)
{
    ComPtr<IPropertyStorage> set;
    ThrowIfFailed(sets.Create(id, nullptr, PROPSETFLAG_DEFAULT, STGM_CREATE | kStorageMode, set.GetAddressOf()),
                  kFailed);
    return set;
}

void WriteSummary(IPropertySetStorage& sets, const std::vector<CustomProperty>& summary)
{
    const auto set = CreateSet(sets, kSummarySet);
    for (const SummaryId& row : kSummaryIds)
        for (const CustomProperty& property : summary)
            if (property.name == row.name && !property.value.empty()) Write(*set.Get(), row.id, property);
    ThrowIfFailed(set->Commit(STGC_DEFAULT), kFailed);
}

void WriteCustom(IPropertySetStorage& sets, const std::vector<CustomProperty>& custom)
{
    if (custom.empty()) return;
    const auto set = CreateSet(sets, kUserDefinedSet);
    PROPID id = kFirstUserId;
    for (const CustomProperty& property : custom) {
        std::wstring name = Widen(property.name);
        LPOLESTR names[] = {name.data()};
        ThrowIfFailed(set->WritePropertyNames(1, &id, names), kFailed);
        Write(*set.Get(), id++, property);
    }
    // Wine's property storage takes texts and numbers only.
    ThrowIfFailed(set->Commit(STGC_DEFAULT), L"The property storage does not take every type of custom property.");
}

void ReadSummary(IPropertySetStorage& sets, CompoundContents& contents)
{
    ComPtr<IPropertyStorage> set;
    if (FAILED(sets.Open(kSummarySet, STGM_READ | STGM_SHARE_EXCLUSIVE, set.GetAddressOf()))) return;
    for (const SummaryId& row : kSummaryIds) {
        StoredValue stored;
        const PROPSPEC spec = ById(row.id);
        CustomProperty property{row.name, PropertyType::Text, {}};
        if (set->ReadMultiple(1, &spec, &stored.value) == S_OK) Read(stored.value, property);
        contents.summary.push_back(property);
    }
}

void ReadCustom(IPropertySetStorage& sets, CompoundContents& contents)
{
    ComPtr<IPropertyStorage> set;
    ComPtr<IEnumSTATPROPSTG> each;
    if (FAILED(sets.Open(kUserDefinedSet, STGM_READ | STGM_SHARE_EXCLUSIVE, set.GetAddressOf()))) return;
    ThrowIfFailed(set->Enum(each.GetAddressOf()), kFailed);
    std::map<PROPID, CustomProperty> inOrder; // the set lists them in any order
    STATPROPSTG stat{};
    while (each->Next(1, &stat, nullptr) == S_OK) {
        StoredValue stored;
        const PROPSPEC spec = ById(stat.propid);
        CustomProperty property{Narrow(stat.lpwstrName ? stat.lpwstrName : L""), PropertyType::Text, {}};
        ::CoTaskMemFree(stat.lpwstrName);
        ThrowIfFailed(set->ReadMultiple(1, &spec, &stored.value), kFailed);
        Read(stored.value, property);
        if (!property.name.empty()) inOrder[stat.propid] = property;
    }
    for (auto& [id, property] : inOrder)
        contents.custom.push_back(std::move(property));
}

ComPtr<IPropertySetStorage> SetsOf(const ComPtr<IStorage>& storage)
{
    ComPtr<IPropertySetStorage> sets;
    ThrowIfFailed(storage.As(&sets), kFailed);
    return sets;
}

} // namespace

bool IsCompoundFile(const std::string& bytes) { return bytes.starts_with(kSignature); }

CompoundContents ReadCompoundFile(const std::string& bytes)
{
    const auto memory = MemoryBytes(bytes);
    ComPtr<IStorage> storage;
    ThrowIfFailed(::StgOpenStorageOnILockBytes(memory.Get(), nullptr, kStorageMode, nullptr, 0, storage.GetAddressOf()),
                  L"PowerPoint cannot read this file.");
    const auto sets = SetsOf(storage);
    CompoundContents contents;
    ReadSummary(*sets.Get(), contents);
    ReadCustom(*sets.Get(), contents);
    return contents;
}

std::string WriteCompoundFile(const CompoundContents& contents)
{
    const auto memory = MemoryBytes({});
    ComPtr<IStorage> storage;
    ThrowIfFailed(::StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | kStorageMode, 0, storage.GetAddressOf()),
                  kFailed);
    const auto sets = SetsOf(storage);
    WriteSummary(*sets.Get(), contents.summary);
    WriteCustom(*sets.Get(), contents.custom);
    ThrowIfFailed(storage->Commit(STGC_DEFAULT), kFailed);
    return BytesOf(*memory.Get());
}

} // namespace host
