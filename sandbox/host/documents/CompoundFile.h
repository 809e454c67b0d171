// Compound files, and the documents and mail items that are kept in them.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include "base/HostFacts.h"
#include "package/CustomProperty.h"

namespace host
{

struct StorageStream
{
    std::wstring name;
    std::string bytes;
};

[[nodiscard]] bool IsStorage(const std::string& bytes);

// A compound file in memory: its class and the streams of its root. These, and what follows, throw Error when it is
// damaged.
[[nodiscard]] std::string WriteStorage(REFCLSID classId, const std::vector<StorageStream>& streams);
[[nodiscard]] std::vector<StorageStream> ReadStorage(const std::string& bytes);

// The bytes of the named stream; empty when there is none.
[[nodiscard]] std::string StreamNamed(const std::vector<StorageStream>& streams, const std::wstring& name);

// A document of the binary formats: its summary and its custom properties, and as much of the host's own stream as
// tells what it is. The text itself is not written: the stand-in shows the title only.
[[nodiscard]] DocumentContents ReadCompoundFile(const std::string& bytes);
[[nodiscard]] std::string WriteCompoundFile(HostKind host, bool isTemplate, const DocumentContents& contents);

// A mail item with its Subject, Body, To and CC.
[[nodiscard]] DocumentContents ReadMessageFile(const std::string& bytes);
[[nodiscard]] std::string WriteMessageFile(bool unicode, const DocumentContents& contents);

} // namespace host
