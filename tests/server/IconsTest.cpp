#include "core/Icons.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace server
{

namespace
{

// The pixels of a GIF with one picture and a global table of four colours, read as the format prescribes: code width
// grows with the table. Independent of how the encoder keeps its codes short.
class GifReader
{
public:
    explicit GifReader(const std::string& gif) : m_gif{gif} {}

    std::string Pixels()
    {
        constexpr std::size_t kImageDescriptor = 13 + 12;
        EXPECT_EQ(m_gif[kImageDescriptor], ',');
        m_minimum = m_gif[kImageDescriptor + 10];
        ReadBlocks(kImageDescriptor + 11);
        Clear();
        std::string pixels;
        for (int code = Next(); code != (1 << m_minimum) + 1; code = Next()) {
            if (code == 1 << m_minimum)
                Clear();
            else
                pixels += Take(code);
        }
        return pixels;
    }

private:
    void ReadBlocks(std::size_t at)
    {
        for (; m_gif.at(at) != 0; at += static_cast<unsigned char>(m_gif[at]) + 1U)
            m_data += m_gif.substr(at + 1, static_cast<unsigned char>(m_gif[at]));
        EXPECT_EQ(m_gif.substr(at + 1), ";");
    }

    void Clear()
    {
        m_table.clear();
        for (int code = 0; code < 1 << m_minimum; ++code)
            m_table[code] = std::string(1, static_cast<char>(code));
        m_next = (1 << m_minimum) + 2;
        m_width = m_minimum + 1;
        m_previous.clear();
    }

    int Next()
    {
        int code = 0;
        for (int bit = 0; bit < m_width; ++bit, ++m_bit)
            code |= ((m_data.at(m_bit / 8) >> (m_bit % 8)) & 1) << bit;
        return code;
    }

    std::string Take(int code)
    {
        const auto text = m_table.contains(code) ? m_table[code] : m_previous + m_previous.substr(0, 1);
        if (!m_previous.empty()) m_table[m_next++] = m_previous + text.substr(0, 1);
        if (m_next == 1 << m_width) ++m_width;
        m_previous = text;
        return text;
    }

    const std::string& m_gif;
    std::string m_data;
    std::map<int, std::string> m_table;
    std::string m_previous;
    int m_minimum = 0, m_width = 0, m_next = 0;
    std::size_t m_bit = 0;
};

constexpr const char* kFiles[] = {"project_offi.gif", "stage_offi.gif", "gate_offi.gif"};

} // namespace

TEST(Icons, DecodeToFullPicturesThatDifferByKindAndSet)
{
    std::set<std::string> drawings;
    std::set<std::string> files;
    for (const char* set : {"Azure", "Moss", "Amber", "Plum"})
        for (const char* file : kFiles) {
            const auto gif = DrawSetIcon(set, file);
            ASSERT_TRUE(gif);
            EXPECT_TRUE(gif->starts_with(std::string("GIF89a\x11\0\x11\0", 10)));
            const auto pixels = GifReader{*gif}.Pixels();
            EXPECT_EQ(pixels.size(), 17U * 17U);
            EXPECT_EQ(std::set<char>(pixels.begin(), pixels.end()), (std::set<char>{0, 1, 2, 3}));
            drawings.insert(pixels);
            files.insert(*gif);
        }
    EXPECT_EQ(drawings.size(), 3U);
    EXPECT_EQ(files.size(), 12U);
}

TEST(Icons, DoNotExistForUnknownSetsAndNames)
{
    EXPECT_FALSE(DrawSetIcon("Retired", kFiles[0]));
    EXPECT_FALSE(DrawSetIcon("Azure", "deliverable_offi.gif"));
}

} // namespace server
