#include "core/Icons.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace server
{

namespace
{

constexpr int kSide = 17;

struct Colour
{
    std::uint8_t red, green, blue;
};

// Colours of a picture: white ground, outline, fill, light.
using Palette = std::array<Colour, 4>;

struct IconSet
{
    std::string_view name;
    Palette palette;
};

constexpr Colour kWhite{255, 255, 255};
constexpr std::array<IconSet, 4> kSets{{
    {"Azure", {kWhite, {24, 78, 140}, {74, 144, 217}, {178, 212, 245}}},
    {"Moss", {kWhite, {46, 96, 52}, {104, 168, 96}, {200, 230, 190}}},
    {"Amber", {kWhite, {150, 92, 10}, {240, 170, 50}, {255, 226, 160}}},
    {"Plum", {kWhite, {92, 40, 110}, {160, 96, 180}, {226, 196, 234}}},
}};

// '.' ground, '#' outline, 'o' fill, '-' light.
using Drawing = std::array<std::string_view, kSide>;

constexpr Drawing kProject{
    ".................", ".................", "..######.........", ".#------#........", ".#-------#######.",
    ".#--------------#", ".#--------------#", ".################", ".#--------------#", ".#oooooooooooooo#",
    ".#oooooooooooooo#", ".#oooooooooooooo#", ".#oooooooooooooo#", ".#oooooooooooooo#", ".################",
    ".................", ".................",
};
constexpr Drawing kStage{
    ".................", ".................", ".................", ".###########.....", ".#----------#....",
    "..#----------#...", "...#ooooooooo#...", "....#ooooooooo#..", ".....#ooooooooo#.", "....#ooooooooo#..",
    "...#ooooooooo#...", "..#oooooooooo#...", ".#oooooooooo#....", ".###########.....", ".................",
    ".................", ".................",
};
constexpr Drawing kGate{
    ".................", "........#........", ".......#-#.......", "......#---#......", ".....#-----#.....",
    "....#-------#....", "...#---------#...", "..#-----------#..", ".#ooooooooooooo#.", "..#ooooooooooo#..",
    "...#ooooooooo#...", "....#ooooooo#....", ".....#ooooo#.....", "......#ooo#......", ".......#o#.......",
    "........#........", ".................",
};

const Drawing* FindDrawing(std::string_view fileName)
{
    if (fileName == "project_offi.gif") return &kProject;
    if (fileName == "stage_offi.gif") return &kStage;
    return fileName == "gate_offi.gif" ? &kGate : nullptr;
}

// Packs codes of varying meaning but fixed width, lowest bit first.
class CodeWriter
{
public:
    explicit CodeWriter(int width) : m_width{width} {}

    void Add(unsigned code)
    {
        m_pending |= code << m_count;
        for (m_count += m_width; m_count >= 8; m_count -= 8, m_pending >>= 8)
            m_bytes += static_cast<char>(m_pending & 0xFF);
    }
    [[nodiscard]] std::string Finish()
    {
        if (m_count > 0) m_bytes += static_cast<char>(m_pending & 0xFF);
        return m_bytes;
    }

private:
    int m_width;
    int m_count = 0;
    unsigned m_pending = 0;
    std::string m_bytes;
};

// The pixels as LZW codes. A clear code in time before the code width would grow keeps every code at three bits, so no
// string table is needed.
std::string PixelCodes(const Drawing& drawing)
{
    constexpr unsigned kClear = 4;
    constexpr unsigned kEnd = 5;
    constexpr int kPixelsPerTable = 2;
    CodeWriter codes{3};
    int left = 0;
    for (const auto line : drawing)
        for (const char pixel : line) {
            if (left-- == 0) {
                codes.Add(kClear);
                left = kPixelsPerTable - 1;
            }
            codes.Add(static_cast<unsigned>(std::string_view{".#o-"}.find(pixel)));
        }
    codes.Add(kEnd);
    return codes.Finish();
}

std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

std::string SubBlocks(std::string_view data)
{
    std::string blocks;
    for (; !data.empty(); data.remove_prefix(std::min<std::size_t>(255, data.size()))) {
        const auto block = data.substr(0, 255);
        blocks += static_cast<char>(block.size());
        blocks += block;
    }
    return blocks + '\0';
}

std::string EncodeGif(const Drawing& drawing, const Palette& palette)
{
    constexpr int kFourColours = 0x91; // a global table of 2^(1+1) colours, 2 bits each
    std::string gif = "GIF89a" + Bytes({kSide, 0, kSide, 0, kFourColours, 0, 0});
    for (const auto& colour : palette)
        gif += Bytes({colour.red, colour.green, colour.blue});
    gif += Bytes({',', 0, 0, 0, 0, kSide, 0, kSide, 0, 0, 2});
    return gif + SubBlocks(PixelCodes(drawing)) + ';';
}

} // namespace

std::optional<std::string> DrawSetIcon(std::string_view set, std::string_view fileName)
{
    const auto* drawing = FindDrawing(fileName);
    const auto found = std::ranges::find(kSets, set, &IconSet::name);
    if (!drawing || found == kSets.end()) return std::nullopt;
    return EncodeGif(*drawing, found->palette);
}

} // namespace server
