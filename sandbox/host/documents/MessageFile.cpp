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

struct MessageField
{
    const char* name;
    std::uint32_t tag;
};

constexpr MessageField kFields[] = {{"Subject", 0x0037}, {"Body", 0x1000}, {"To", 0x0E04}, {"CC", 0x0E03}};
constexpr MessageField kMessageKind{"IPM.Note", 0x001A};

std::wstring StreamOf(std::uint32_t tag, std::uint32_t type)
{
    wchar_t name[32];
    ::swprintf_s(name, std::size(name), L"__substg1.0_%04X%04X", tag, type);
    return name;
}

std::string WideBytes(const std::wstring& text)
{
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

// Collects the streams of a message and the table that lists its properties.
class MessageWriter
{
public:
    explicit MessageWriter(bool unicode) : m_type{unicode ? kUnicodeText : kAnsiText}
    {
        if (unicode) AddRow(kStoreMask, kUnicodeStore, 0);
    }

    void Add(std::uint32_t tag, const std::string& value)
    {
        const bool unicode = m_type == kUnicodeText;
        const std::string bytes = unicode ? WideBytes(Widen(value)) : corvane::ToCodePage(Widen(value));
        AddRow(tag << 16 | m_type, static_cast<std::uint32_t>(bytes.size() + (unicode ? 2 : 1)), 0);
        m_streams.push_back({StreamOf(tag, m_type), bytes});
    }

    [[nodiscard]] std::string Write()
    {
        m_streams.push_back({kPropertiesStream, std::string(32, '\0') + m_rows});
        return WriteStorage(kMessageClass, m_streams);
    }

private:
    void AddRow(std::uint32_t tag, std::uint32_t first, std::uint32_t second)
    {
        for (const std::uint32_t number : {tag, kReadableAndWritable, first, second})
            AppendNumber(m_rows, number, 4);
    }

    std::uint32_t m_type;
    std::string m_rows;
    std::vector<StorageStream> m_streams;
};

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
    for (const MessageField& field : kFields)
        contents.builtIn.push_back({field.name, PropertyType::Text, Narrow(FieldText(streams, field.tag))});
    return contents;
}

std::string WriteMessageFile(bool unicode, const DocumentContents& contents)
{
    MessageWriter writer{unicode};
    writer.Add(kMessageKind.tag, kMessageKind.name);
    for (const MessageField& field : kFields)
        writer.Add(field.tag, contents.BuiltIn(field.name));
    return writer.Write();
}

} // namespace host
