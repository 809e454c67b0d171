// A binary stream in memory, as the platform's data library provides it.
#pragma once

#include "platform/Owners.h"
#include "platform/Variant.h"

namespace corvane
{

struct DataStream;

// An open binary stream of the platform's Stream class. Every member throws Error.
class BinaryStream
{
public:
    // Empty and open.
    BinaryStream();
    BinaryStream(BinaryStream&& other) noexcept;
    BinaryStream& operator=(BinaryStream&& other) noexcept;
    ~BinaryStream();

    // Appends the bytes of a value (an array of unsigned bytes).
    void Write(const Variant& bytes);

    // Rewinds the stream and reads all of it: an array of unsigned bytes, or Null where there are none.
    [[nodiscard]] Variant ReadAll();

private:
    ComPtr<DataStream> m_stream;
};

} // namespace corvane
