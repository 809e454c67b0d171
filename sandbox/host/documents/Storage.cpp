#include "documents/CompoundFile.h"

#include <algorithm>

#include <ole2.h>
#include <wrl/client.h>

#include "automation/Errors.h"
#include "platform/Owners.h"

namespace host
{
namespace
{

using Microsoft::WRL::ComPtr;

constexpr DWORD kExclusive = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr char kSignature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

void Ensure(HRESULT result) { ThrowIfFailed(result, L"The compound file could not be processed."); }

ComPtr<ILockBytes> MemoryWith(const std::string& bytes)
{
    ComPtr<ILockBytes> memory;
    Ensure(::CreateILockBytesOnHGlobal(nullptr, TRUE, memory.GetAddressOf()));
    Ensure(memory->WriteAt({}, bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
    return memory;
}

// All of a stream or of a memory, from which this reads.
template<class Source, class Read>
std::string AllOf(Source& source, const Read& read)
{
    STATSTG stat{};
    Ensure(source.Stat(&stat, STATFLAG_NONAME));
    std::string bytes(static_cast<std::size_t>(stat.cbSize.QuadPart), '\0');
    ULONG got = 0;
    Ensure(read(bytes.data(), static_cast<ULONG>(bytes.size()), &got));
    bytes.resize(got);
    return bytes;
}

void WriteStream(IStorage& storage, const wchar_t* name, const std::string& bytes)
{
    ComPtr<IStream> stream;
    Ensure(storage.CreateStream(name, STGM_CREATE | kExclusive, 0, 0, stream.GetAddressOf()));
    Ensure(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
}

std::string ReadStream(IStorage& storage, const wchar_t* name)
{
    ComPtr<IStream> stream;
    if (FAILED(storage.OpenStream(name, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.GetAddressOf())))
        return {};
    return AllOf(*stream.Get(), [&](auto... into) { return stream->Read(into...); });
}

// The next stream of the root; false when there is none left. Storages inside it are passed over.
bool NextStream(IEnumSTATSTG& elements, std::wstring& name)
{
    STATSTG element{};
    while (elements.Next(1, &element, nullptr) == S_OK) {
        const corvane::Unique<wchar_t*, ::CoTaskMemFree> found{element.pwcsName};
        name = found.Get();
        if (element.type == STGTY_STREAM) return true;
    }
    return false;
}

} // namespace

bool IsStorage(const std::string& bytes) { return bytes.starts_with(kSignature); }

std::string WriteStorage(REFCLSID classId, const std::vector<StorageStream>& streams)
{
    const ComPtr<ILockBytes> memory = MemoryWith({});
    ComPtr<IStorage> storage;
    Ensure(::StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | kExclusive, 0, storage.GetAddressOf()));
    Ensure(storage->SetClass(classId));
    for (const StorageStream& stream : streams)
        WriteStream(*storage.Get(), stream.name.c_str(), stream.bytes);
    Ensure(storage->Commit(STGC_DEFAULT));
    return AllOf(*memory.Get(), [&](auto... into) { return memory->ReadAt({}, into...); });
}

std::vector<StorageStream> ReadStorage(const std::string& bytes)
{
    const ComPtr<ILockBytes> memory = MemoryWith(bytes);
    ComPtr<IStorage> storage;
    Ensure(::StgOpenStorageOnILockBytes(memory.Get(), nullptr, kExclusive, nullptr, 0, storage.GetAddressOf()));
    ComPtr<IEnumSTATSTG> elements;
    Ensure(storage->EnumElements(0, nullptr, 0, elements.GetAddressOf()));
    std::vector<StorageStream> streams;
    for (std::wstring name; NextStream(*elements.Get(), name);)
        streams.push_back({name, ReadStream(*storage.Get(), name.c_str())});
    return streams;
}

std::string StreamNamed(const std::vector<StorageStream>& streams, const std::wstring& name)
{
    const auto found = std::ranges::find(streams, name, &StorageStream::name);
    return found == streams.end() ? std::string{} : found->bytes;
}

} // namespace host
