// What a fuzz target draws from the bytes that it is given.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

// Ends the run when something that must hold does not.
inline void Require(bool holds)
{
    if (!holds) std::abort();
}

class Input
{
public:
    Input(const std::uint8_t* bytes, std::size_t size) : m_bytes{bytes, size} {}

    [[nodiscard]] std::int32_t Number() { return m_bytes.ConsumeIntegral<std::int32_t>(); }
    [[nodiscard]] std::int32_t Number(std::int32_t low, std::int32_t high)
    {
        return m_bytes.ConsumeIntegralInRange(low, high);
    }
    [[nodiscard]] bool Choice() { return m_bytes.ConsumeBool(); }

    // UTF-16 code units; in half of the texts each is one byte, which keeps to letters that parsers know.
    [[nodiscard]] std::wstring Text() { return Widen(m_bytes.ConsumeRandomLengthString()); }
    [[nodiscard]] std::wstring Rest() { return Widen(m_bytes.ConsumeRemainingBytesAsString()); }
    [[nodiscard]] std::string RestAsBytes() { return m_bytes.ConsumeRemainingBytesAsString(); }

private:
    static std::wstring Widen(const std::string& bytes)
    {
        std::wstring text;
        const bool isWide = !bytes.empty() && (static_cast<unsigned char>(bytes.front()) & 0x80U) != 0;
        for (std::size_t index = 0; index < bytes.size(); index += isWide ? 2 : 1) {
            unsigned unit = static_cast<unsigned char>(bytes[index]);
            if (isWide && index + 1 < bytes.size()) unit |= static_cast<unsigned char>(bytes[index + 1]) * 256U;
            text += static_cast<wchar_t>(unit);
        }
        return text;
    }

    FuzzedDataProvider m_bytes;
};

// Each target defines this.
void Fuzz(Input& input);
