#include "ribbon/Ribbon.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>

#include "base/Text.h"

namespace host
{
namespace
{

const std::filesystem::path kFolder = RIBBON_TABLE;

std::string Sound(const std::string& edition)
{
    std::ostringstream text;
    text << std::ifstream{kFolder / (edition + ".xml"), std::ios::binary}.rdbuf();
    return text.str();
}

// The text with {N} written out.
std::string WithLongText(const std::string& text)
{
    std::smatch wanted;
    if (!std::regex_search(text, wanted, std::regex{R"(\{(\d+)\})"})) return text;
    std::string letters;
    for (int i = std::stoi(wanted[1]); i > 0; --i)
        letters += "\xc3\xa9";
    return wanted.prefix().str() + letters + wanted.suffix().str();
}

// The ribbons that come of a change of the sound one, a new one for every place where the pattern fits.
std::vector<std::string> Changed(const std::string& sound, const std::string& pattern, const std::string& replacement)
{
    if (pattern.empty()) return {sound};
    std::vector<std::string> ribbons;
    const std::regex places{pattern};
    for (std::sregex_iterator at{sound.begin(), sound.end(), places}; at != std::sregex_iterator{}; ++at) {
        const auto begin = static_cast<std::size_t>(at->position());
        ribbons.push_back(std::string{sound}.replace(begin, at->str().size(), at->format(replacement)));
    }
    return ribbons;
}

bool IsRead(const std::string& xml, int version)
{
    try {
        static_cast<void>(ReadRibbon(xml, version));
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

TEST(RibbonTest, OnlySoundRibbonsAreRead)
{
    const std::pair<std::string, int> kEditions[] = {{"2006-01", 12}, {"2009-07", 14}};
    std::ifstream table{kFolder / "ribbons.txt"};
    int tried = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        std::istringstream parts{line};
        std::string name, where, verdict, pattern, arrow, replacement;
        parts >> name >> where >> verdict >> pattern >> arrow >> std::ws;
        std::getline(parts, replacement);
        for (const auto& [edition, version] : kEditions) {
            if (where != edition && where != "both") continue;
            const std::vector<std::string> ribbons = Changed(Sound(edition), pattern, WithLongText(replacement));
            EXPECT_FALSE(ribbons.empty()) << line << " changes nothing";
            for (const std::string& ribbon : ribbons)
                EXPECT_EQ(IsRead(ribbon, version), verdict == "sound") << line << '\n' << ribbon;
            tried += static_cast<int>(ribbons.size());
        }
    }
    EXPECT_GT(tried, 0) << "no table in " << kFolder;
}

TEST(RibbonTest, FindsControlsInEveryPlace)
{
    const Ribbon ribbon = ReadRibbon(Sound("2009-07"), 16);
    EXPECT_EQ(ribbon.onLoad, "Loaded");
    EXPECT_EQ(IdOf(ribbon.tabs.at(0)), "a:Maker");
    EXPECT_EQ(ShownRibbon{ribbon}.Label(ribbon.backstage.at(0)), L"Save to &");
    ASSERT_NE(ribbon.Find("Topics"), nullptr);
    EXPECT_EQ(ribbon.Find("Topics")->Attribute("onAction"), "Pressed");
    ASSERT_NE(ribbon.Find("Gate"), nullptr);
    EXPECT_EQ(ribbon.Find("gate"), nullptr) << "ids are case-sensitive";
}

TEST(RibbonTest, OldNamespaceWithOfficeMenuSuitsEveryRibbonHost)
{
    EXPECT_EQ(ReadRibbon(Sound("2006-01"), 12).officeMenu.size(), 1u);
    EXPECT_NE(ReadRibbon(Sound("2006-01"), 16).Find("Gate"), nullptr);
}

TEST(RibbonTest, LabelsLoseTheirAccessKeyMarks)
{
    EXPECT_EQ(WithoutMark(L"&Save && Send"), L"Save & Send");
    EXPECT_EQ(WithoutMark(L"trailing&"), L"trailing");
}

} // namespace
} // namespace host
