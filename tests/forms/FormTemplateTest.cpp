#include "forms/FormTemplate.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

using Bytes = std::vector<std::byte>;

// The parts of a DLGTEMPLATEEX that decide where its items start.
struct Layout
{
    const char* name;
    std::u16string menu; // with its end, or the mark and number of an ordinal
    std::u16string windowClass;
    std::u16string title;
};

constexpr std::uint16_t kSetFont = 0x40;
constexpr std::size_t kStylePosition = 12;
constexpr std::size_t kSignaturePosition = 2;

void AddWord(Bytes& bytes, std::uint16_t word)
{
    bytes.push_back(static_cast<std::byte>(word & 0xFFU));
    bytes.push_back(static_cast<std::byte>(word >> 8U));
}

void AddText(Bytes& bytes, std::u16string_view text)
{
    for (const char16_t letter : text)
        AddWord(bytes, letter);
}

// Head, texts and font, up to the first item.
Bytes Front(const Layout& layout, const TemplateFont& font)
{
    Bytes bytes;
    const std::uint16_t kHead[] = {1, 0xFFFF, 0, 0, 0, 0, kSetFont | 0x80, 0x90C0, 2, 10, 20, 300, 200};
    for (const std::uint16_t word : kHead)
        AddWord(bytes, word);
    AddText(bytes, layout.menu);
    AddText(bytes, layout.windowClass);
    AddText(bytes, layout.title + u'\0');
    AddWord(bytes, font.pointSize);
    AddWord(bytes, font.weight);
    bytes.push_back(static_cast<std::byte>(font.italic));
    bytes.push_back(static_cast<std::byte>(font.charset));
    AddText(bytes, font.face + u'\0');
    while (bytes.size() % 4 != 0)
        bytes.push_back(std::byte{0});
    return bytes;
}

Bytes Whole(const Layout& layout, const TemplateFont& font)
{
    Bytes bytes = Front(layout, font);
    for (int item = 1; item <= 50; ++item)
        bytes.push_back(static_cast<std::byte>(item));
    return bytes;
}

const std::u16string kNone(1, u'\0');
const std::u16string kOrdinal{u'\xFFFF', u'\x65'};
const Layout kLayouts[] = {
    {"Plain", kNone, kNone, u"Save"},
    {"OddTitle", kNone, kNone, u"Saved"},
    {"NoTitle", kNone, kNone, u""},
    {"MenuByNumber", kOrdinal, kNone, u"Save"},
    {"MenuAndClassByNumber", kOrdinal, kOrdinal, u"Save"},
    {"MenuAndClassByName", std::u16string{u"MAIN\0", 5}, std::u16string{u"Dialog\0", 7}, u"Save"},
};
const TemplateFont kShipped{8, 400, false, 1, u"MS Shell Dlg"};

} // namespace

TEST(FormTemplate, TakesAnotherFontAndKeepsEverythingElse)
{
    const TemplateFont kFonts[] = {
        {9, 400, false, 1, u"Segoe UI"}, {11, 700, true, 128, u"Arial"}, {10, 400, false, 0, u""}, kShipped};
    for (const Layout& layout : kLayouts) {
        for (const TemplateFont& font : kFonts)
            EXPECT_EQ(WithFont(Whole(layout, kShipped), font), Whole(layout, font)) << layout.name << font.pointSize;
    }
}

TEST(FormTemplate, RefusesWhatIsNoExtendedTemplateWithAFont)
{
    Bytes fontless = Whole(kLayouts[0], kShipped);
    fontless[kStylePosition] = std::byte{0x80};
    EXPECT_TRUE(WithFont(fontless, kShipped).empty());

    Bytes classic = Whole(kLayouts[0], kShipped);
    classic[kSignaturePosition] = std::byte{0};
    EXPECT_TRUE(WithFont(classic, kShipped).empty());
}

} // namespace corvane
