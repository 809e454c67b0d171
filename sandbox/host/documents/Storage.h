// Compound files.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace host
{

struct StorageStream
{
    std::wstring name;
    std::string bytes;
};

[[nodiscard]] bool IsStorage(const std::string& bytes);

// A compound file in memory: its class and the streams of its root. Both throw Error when it is damaged.
[[nodiscard]] std::string WriteStorage(REFCLSID classId, const std::vector<StorageStream>& streams);
[[nodiscard]] std::vector<StorageStream> ReadStorage(const std::string& bytes);

// The bytes of the named stream; empty when there is none.
[[nodiscard]] std::string StreamNamed(const std::vector<StorageStream>& streams, const std::wstring& name);

} // namespace host
