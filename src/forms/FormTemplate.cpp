#include "forms/FormTemplate.h"

#include <cstring>

namespace corvane
{
namespace
{

// Layout of DLGTEMPLATEEX as the platform documents it: a fixed head, three counted or zero-terminated texts (menu,
// window class, title), the font, and the items, each aligned to four bytes.
constexpr std::size_t kSignatureOffset = 2;
constexpr std::size_t kStyleOffset = 12;
constexpr std::size_t kTextsOffset = 26;
constexpr std::uint16_t kExtendedSignature = 0xFFFF;
constexpr std::uint16_t kOrdinalMark = 0xFFFF;
constexpr std::uint32_t kSetFontStyle = 0x40;
constexpr std::size_t kFontHead = 6; // point size, weight, italic, character set

class Reader
{
public:
    explicit Reader(std::span<const std::byte> bytes) : m_bytes{bytes} {}

    [[nodiscard]] std::uint16_t WordAt(std::size_t offset) const
    {
        std::uint16_t word = 0;
        if (offset + sizeof word <= m_bytes.size()) std::memcpy(&word, m_bytes.data() + offset, sizeof word);
        return word;
    }

    [[nodiscard]] std::size_t AfterText(std::size_t offset) const
    {
        while (offset < m_bytes.size() && WordAt(offset) != 0)
            offset += sizeof(std::uint16_t);
        return offset + sizeof(std::uint16_t);
    }

    // Menu and class are an ordinal behind a mark, or a text.
    [[nodiscard]] std::size_t AfterTextOrOrdinal(std::size_t offset) const
    {
        return WordAt(offset) == kOrdinalMark ? offset + 2 * sizeof(std::uint16_t) : AfterText(offset);
    }

private:
    std::span<const std::byte> m_bytes;
};

void AppendWord(std::vector<std::byte>& bytes, std::uint16_t word)
{
    bytes.push_back(static_cast<std::byte>(word & 0xFFU));
    bytes.push_back(static_cast<std::byte>(word >> 8U));
}

constexpr std::size_t Aligned(std::size_t offset) { return (offset + 3U) & ~std::size_t{3}; }

} // namespace

std::vector<std::byte> WithFont(std::span<const std::byte> dialogTemplate, const TemplateFont& font)
{
    const Reader reader{dialogTemplate};
    const bool isExtended = reader.WordAt(kSignatureOffset) == kExtendedSignature;
    if (!isExtended || (reader.WordAt(kStyleOffset) & kSetFontStyle) == 0) return {};

    const std::size_t fontStart = reader.AfterText(reader.AfterTextOrOrdinal(reader.AfterTextOrOrdinal(kTextsOffset)));
    const std::size_t itemsStart = Aligned(reader.AfterText(fontStart + kFontHead));
    if (itemsStart > dialogTemplate.size()) return {};

    std::vector<std::byte> copy(dialogTemplate.begin(),
                                dialogTemplate.begin() + static_cast<std::ptrdiff_t>(fontStart));
    AppendWord(copy, font.pointSize);
    AppendWord(copy, font.weight);
    copy.push_back(static_cast<std::byte>(font.italic ? 1 : 0));
    copy.push_back(static_cast<std::byte>(font.charset));
    for (const char16_t letter : font.face)
        AppendWord(copy, letter);
    AppendWord(copy, 0);
    copy.resize(Aligned(copy.size()));
    copy.insert(copy.end(), dialogTemplate.begin() + static_cast<std::ptrdiff_t>(itemsStart), dialogTemplate.end());
    return copy;
}

} // namespace corvane
