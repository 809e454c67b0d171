#include "documents/CompoundFile.h"

#include <algorithm>

#include "automation/OfficeInterfaces.h"
#include "package/Bytes.h"
#include "package/PropertySet.h"

namespace host
{
namespace
{

constexpr std::uint32_t kFirstUserId = 2;
constexpr wchar_t kSummaryStream[] = L"\005SummaryInformation";
constexpr wchar_t kDocumentSummaryStream[] = L"\005DocumentSummaryInformation";

constexpr std::pair<const char*, std::uint32_t> kSummaryIds[] = {
    {"Title", 2}, {"Subject", 3}, {"Author", 4}, {"Keywords", 5}, {"Comments", 6}, {"Last Author", 8},
};

PropertySection SummarySection(const std::vector<CustomProperty>& summary)
{
    PropertySection section{FMTID_SummaryInformation, {}};
    for (const auto& [name, id] : kSummaryIds)
        for (const CustomProperty& property : summary)
            if (property.name == name && !property.value.empty()) section.properties.push_back({id, property});
    return section;
}

PropertySection UserDefinedSection(const std::vector<CustomProperty>& custom)
{
    PropertySection section{FMTID_UserDefinedProperties, {}};
    std::uint32_t id = kFirstUserId;
    for (const CustomProperty& property : custom)
        section.properties.push_back({id++, property});
    return section;
}

void Take(const PropertySection& section, DocumentContents& contents)
{
    for (const SetProperty& row : section.properties) {
        if (section.format == FMTID_UserDefinedProperties && !row.property.name.empty())
            contents.custom.push_back(row.property);
        if (section.format != FMTID_SummaryInformation) continue;
        for (const auto& [name, id] : kSummaryIds)
            if (id == row.id) contents.builtIn.push_back({name, PropertyType::Text, row.property.value});
    }
}

// The stream that carries the host's text, as far as it tells what the file is.
struct MainStream
{
    HostKind host;
    CLSID classId;
    const wchar_t* name;
    std::string (*start)(bool isTemplate);
};

// An empty document container.
std::string SlidesStart(bool) { return Numbers({{0x000F, 2}, {1000, 2}, {0, 4}}); }

// The base of the file information block: 32 bytes, the template flag is bit 0 of those at 10.
std::string TextStart(bool isTemplate)
{
    return Numbers({{0xA5EC, 2}, {0x00C1, 2}, {0, 6}, {isTemplate ? 1U : 0U, 2}, {0, 20}});
}

// The records of the workbook's globals: begin, template, end.
std::string SheetsStart(bool isTemplate)
{
    const std::string begin = Numbers({{0x0010'0809, 4}, {0x0005'0600, 4}, {0, 12}});
    return begin + (isTemplate ? Numbers({{0x0060, 4}}) : std::string{}) + Numbers({{0x000A, 4}});
}

constexpr MainStream kMainStreams[] = {
    {HostKind::PowerPoint,
     {0x64818D10, 0x4F9B, 0x11CF, {0x86, 0xEA, 0x00, 0xAA, 0x00, 0xB9, 0x29, 0xE8}},
     L"PowerPoint Document",
     SlidesStart},
    {HostKind::Word, OfficeId(0x00020906), L"WordDocument", TextStart},
    {HostKind::Excel, OfficeId(0x00020820), L"Workbook", SheetsStart},
};

} // namespace

DocumentContents ReadCompoundFile(const std::string& bytes)
{
    const auto streams = ReadStorage(bytes);
    DocumentContents contents;
    for (const wchar_t* name : {kSummaryStream, kDocumentSummaryStream}) {
        const std::string stream = StreamNamed(streams, name);
        if (stream.empty()) continue;
        for (const PropertySection& section : ReadPropertySet(stream))
            Take(section, contents);
    }
    return contents;
}

std::string WriteCompoundFile(HostKind host, bool isTemplate, const DocumentContents& contents)
{
    const MainStream& main = *std::ranges::find(kMainStreams, host, &MainStream::host);
    return WriteStorage(main.classId,
                        {{main.name, main.start(isTemplate)},
                         {kSummaryStream, WritePropertySet({SummarySection(contents.builtIn)})},
                         {kDocumentSummaryStream,
                          WritePropertySet({{FMTID_DocSummaryInformation, {}}, UserDefinedSection(contents.custom)})}});
}

} // namespace host
