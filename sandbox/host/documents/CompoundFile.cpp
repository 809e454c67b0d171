#include "documents/CompoundFile.h"

#include <cstring>

#include <ole2.h>
#include <wrl/client.h>

#include "automation/AutomationError.h"
#include "package/PropertySet.h"

namespace host
{
namespace
{

using Microsoft::WRL::ComPtr;

constexpr DWORD kExclusive = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr std::uint32_t kFirstUserId = 2;
constexpr wchar_t kFailed[] = L"The compound file could not be processed.";
constexpr char kSignature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr wchar_t kSummaryStream[] = L"\005SummaryInformation";
constexpr wchar_t kDocumentSummaryStream[] = L"\005DocumentSummaryInformation";

struct SummaryId
{
    const char* name;
    std::uint32_t id;
};

constexpr SummaryId kSummaryIds[] = {
    {"Title", 2}, {"Subject", 3}, {"Author", 4}, {"Keywords", 5}, {"Comments", 6}, {"Last Author", 8},
};

ComPtr<ILockBytes> MemoryBytes(const std::string& bytes)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (!memory) throw AutomationError{E_OUTOFMEMORY, kFailed};
    std::memcpy(::GlobalLock(memory), bytes.data(), bytes.size());
    ::GlobalUnlock(memory);
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

void WriteStream(IStorage& storage, const wchar_t* name, const std::string& bytes)
{
    ComPtr<IStream> stream;
    ThrowIfFailed(storage.CreateStream(name, STGM_CREATE | kExclusive, 0, 0, stream.GetAddressOf()), kFailed);
    ThrowIfFailed(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), kFailed);
}

std::string ReadStream(IStorage& storage, const wchar_t* name)
{
    ComPtr<IStream> stream;
    STATSTG stat{};
    if (FAILED(storage.OpenStream(name, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.GetAddressOf())))
        return {};
    ThrowIfFailed(stream->Stat(&stat, STATFLAG_NONAME), kFailed);
    std::string bytes(static_cast<std::size_t>(stat.cbSize.QuadPart), '\0');
    ULONG read = 0;
    ThrowIfFailed(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read), kFailed);
    bytes.resize(read);
    return bytes;
}

PropertySection SummarySection(const std::vector<CustomProperty>& summary)
{
    PropertySection section{kSummarySet, {}};
    for (const SummaryId& row : kSummaryIds)
        for (const CustomProperty& property : summary)
            if (property.name == row.name && !property.value.empty()) section.properties.push_back({row.id, property});
    return section;
}

PropertySection UserDefinedSection(const std::vector<CustomProperty>& custom)
{
    PropertySection section{kUserDefinedSet, {}};
    std::uint32_t id = kFirstUserId;
    for (const CustomProperty& property : custom)
        section.properties.push_back({id++, property});
    return section;
}

void Take(const PropertySection& section, CompoundContents& contents)
{
    for (const SetProperty& row : section.properties) {
        if (section.format == kUserDefinedSet && !row.property.name.empty()) contents.custom.push_back(row.property);
        if (section.format != kSummarySet) continue;
        for (const SummaryId& summary : kSummaryIds)
            if (summary.id == row.id)
                contents.summary.push_back({summary.name, PropertyType::Text, row.property.value});
    }
}

} // namespace

bool IsCompoundFile(const std::string& bytes) { return bytes.starts_with(kSignature); }

CompoundContents ReadCompoundFile(const std::string& bytes)
{
    const auto memory = MemoryBytes(bytes);
    ComPtr<IStorage> storage;
    ThrowIfFailed(::StgOpenStorageOnILockBytes(memory.Get(), nullptr, kExclusive, nullptr, 0, storage.GetAddressOf()),
                  kFailed);
    CompoundContents contents;
    for (const wchar_t* name : {kSummaryStream, kDocumentSummaryStream}) {
        const std::string stream = ReadStream(*storage.Get(), name);
        if (stream.empty()) continue;
        for (const PropertySection& section : ReadPropertySet(stream))
            Take(section, contents);
    }
    return contents;
}

std::string WriteCompoundFile(const CompoundContents& contents)
{
    ComPtr<ILockBytes> memory;
    ComPtr<IStorage> storage;
    ThrowIfFailed(::CreateILockBytesOnHGlobal(nullptr, TRUE, memory.GetAddressOf()), kFailed);
    ThrowIfFailed(::StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | kExclusive, 0, storage.GetAddressOf()),
                  kFailed);
    WriteStream(*storage.Get(), kSummaryStream, WritePropertySet({SummarySection(contents.summary)}));
    WriteStream(*storage.Get(), kDocumentSummaryStream,
                WritePropertySet({{kDocumentSummarySet, {}}, UserDefinedSection(contents.custom)}));
    ThrowIfFailed(storage->Commit(STGC_DEFAULT), kFailed);
    return BytesOf(*memory.Get());
}

} // namespace host
