#include "documents/CompoundFile.h"

#include <algorithm>
#include <cstring>

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
constexpr wchar_t kFailed[] = L"The compound file could not be processed.";
constexpr char kSignature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

// A text that COM hands over to be freed.
struct TaskTextTraits
{
    using Value = wchar_t*;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value text) noexcept { ::CoTaskMemFree(text); }
};

ComPtr<ILockBytes> MemoryBytes(const std::string& bytes)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    if (memory == nullptr) throw Error{E_OUTOFMEMORY, {}, kFailed};
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

// The next stream of the root; false when there is none left. Storages inside it are passed over.
bool NextStream(IEnumSTATSTG& elements, std::wstring& name)
{
    STATSTG element{};
    while (elements.Next(1, &element, nullptr) == S_OK) {
        const corvane::Unique<TaskTextTraits> found{element.pwcsName};
        name = found.Get();
        if (element.type == STGTY_STREAM) return true;
    }
    return false;
}

} // namespace

bool IsStorage(const std::string& bytes) { return bytes.starts_with(kSignature); }

std::string WriteStorage(REFCLSID classId, const std::vector<StorageStream>& streams)
{
    ComPtr<ILockBytes> memory;
    ComPtr<IStorage> storage;
    ThrowIfFailed(::CreateILockBytesOnHGlobal(nullptr, TRUE, memory.GetAddressOf()), kFailed);
    ThrowIfFailed(::StgCreateDocfileOnILockBytes(memory.Get(), STGM_CREATE | kExclusive, 0, storage.GetAddressOf()),
                  kFailed);
    ThrowIfFailed(storage->SetClass(classId), kFailed);
    for (const StorageStream& stream : streams)
        WriteStream(*storage.Get(), stream.name.c_str(), stream.bytes);
    ThrowIfFailed(storage->Commit(STGC_DEFAULT), kFailed);
    return BytesOf(*memory.Get());
}

std::vector<StorageStream> ReadStorage(const std::string& bytes)
{
    const auto memory = MemoryBytes(bytes);
    ComPtr<IStorage> storage;
    ThrowIfFailed(::StgOpenStorageOnILockBytes(memory.Get(), nullptr, kExclusive, nullptr, 0, storage.GetAddressOf()),
                  kFailed);
    ComPtr<IEnumSTATSTG> elements;
    ThrowIfFailed(storage->EnumElements(0, nullptr, 0, elements.GetAddressOf()), kFailed);
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
