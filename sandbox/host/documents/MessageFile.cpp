#include <cwchar>
#include <iterator>

#include "automation/OfficeInterfaces.h"
#include "base/Text.h"
#include "documents/CompoundFile.h"
#include "package/Bytes.h"
#include "platform/CodePage.h"

namespace host
{
namespace
{

constexpr CLSID kMessageClass = OfficeId(0x00020D0B);
constexpr wchar_t kPropertiesStream[] = L"__properties_version1.0";
constexpr std::uint32_t kAnsiText = 0x001E;
constexpr std::uint32_t kUnicodeText = 0x001F;
constexpr std::uint32_t kStoreMask = 0x340D'0003; // its bit 18: texts are Unicode
constexpr std::uint32_t kUnicodeStore = 0x0004'0000;
constexpr std::uint32_t kReadableAndWritable = 6;

constexpr std::uint32_t kKindTag = 0x001A;
constexpr std::pair<const char*, std::uint32_t> kFields[] = {
    {"Subject", 0x0037}, {"Body", 0x1000}, {"To", 0x0E04}, {"CC", 0x0E03}};

std::wstring StreamOf(std::uint32_t tag, std::uint32_t type)
{
    wchar_t name[32];
    ::swprintf_s(name, std::size(name), L"__substg1.0_%04X%04X", tag, type);
    return name;
}

// The bytes of a text, and how many more end it where it is read.
std::pair<std::string, std::size_t> BytesOf(const std::wstring& text, bool unicode)
{
    if (!unicode) return {corvane::ToCodePage(text), 1};
    return {{reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)}, sizeof(wchar_t)};
}

// A row of the table that lists a message's properties.
std::string RowOf(std::uint32_t tag, std::size_t value)
{
    return Numbers({{tag, 4}, {kReadableAndWritable, 4}, {value, 4}, {0, 4}});
}

std::wstring FieldText(const std::vector<StorageStream>& streams, std::uint32_t tag)
{
    const std::string wide = StreamNamed(streams, StreamOf(tag, kUnicodeText));
    if (wide.empty()) return corvane::FromCodePage(StreamNamed(streams, StreamOf(tag, kAnsiText)));
    return {reinterpret_cast<const wchar_t*>(wide.data()), wide.size() / sizeof(wchar_t)};
}

} // namespace

DocumentContents ReadMessageFile(const std::string& bytes)
{
    const auto streams = ReadStorage(bytes);
    DocumentContents contents;
    for (const auto& [name, tag] : kFields)
        contents.builtIn.push_back({name, PropertyType::Text, Narrow(FieldText(streams, tag))});
    return contents;
}

std::string WriteMessageFile(bool unicode, const DocumentContents& contents)
{
    std::string rows(32, '\0');
    if (unicode) rows += RowOf(kStoreMask, kUnicodeStore);
    std::vector<StorageStream> streams;
    const auto add = [&, type = unicode ? kUnicodeText : kAnsiText](std::uint32_t tag, const std::string& value) {
        const auto [bytes, end] = BytesOf(Widen(value), unicode);
        rows += RowOf(tag << 16 | type, bytes.size() + end);
        streams.push_back({StreamOf(tag, type), bytes});
    };
    add(kKindTag, "IPM.Note");
    for (const auto& [name, tag] : kFields)
        add(tag, contents.BuiltIn(name));
    streams.push_back({kPropertiesStream, rows});
    return WriteStorage(kMessageClass, streams);
}

} // namespace host
