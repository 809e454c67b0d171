#include "platform/BinaryStream.h"

#include "platform/HResult.h"

namespace corvane
{

// _Stream of the platform's data library, member by member in its order as far as it is used. Its IDispatch cannot be
// relied on; its methods can.
struct DataStream : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE get_Size(long* size) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_EOS(VARIANT_BOOL* eos) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Position(long* position) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Position(long position) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Type(int* type) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Type(int type) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LineSeparator(int* separator) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_LineSeparator(int separator) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_State(int* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Mode(int* mode) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Mode(int mode) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Charset(BSTR* charset) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Charset(BSTR charset) = 0;
    virtual HRESULT STDMETHODCALLTYPE Read(long count, VARIANT* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE Open(VARIANT source, int mode, int options, BSTR user, BSTR password) = 0;
    virtual HRESULT STDMETHODCALLTYPE Close() = 0;
    virtual HRESULT STDMETHODCALLTYPE SkipLine() = 0;
    virtual HRESULT STDMETHODCALLTYPE Write(VARIANT bytes) = 0;
};

namespace
{

// The interface under its present id, and under the one of the library's early versions.
constexpr IID kStreamIds[] = {
    {0x00001565, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}},
    {0x00000565, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x6D, 0x2E, 0xA4}},
};
constexpr int kTypeBinary = 1;
constexpr int kModeUnknown = 0;
constexpr int kOpenUnspecified = -1;
constexpr long kReadAll = -1;

} // namespace

BinaryStream::BinaryStream()
{
    constexpr const wchar_t* kSource = L"BinaryStream.BinaryStream";
    CLSID classId{};
    Check(::CLSIDFromProgID(L"ADODB.Stream", &classId), kSource);
    HRESULT result = E_NOINTERFACE;
    for (const IID& id : kStreamIds) {
        if (result != E_NOINTERFACE) break;
        result = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, id,
                                    reinterpret_cast<void**>(m_stream.ReleaseAndGetAddressOf()));
    }
    Check(result, kSource);
    Check(m_stream->put_Type(kTypeBinary), kSource);
    const Variant noSource = Variant::Missing();
    Check(m_stream->Open(noSource.Get(), kModeUnknown, kOpenUnspecified, nullptr, nullptr), kSource);
}

BinaryStream::BinaryStream(BinaryStream&& other) noexcept = default;
BinaryStream& BinaryStream::operator=(BinaryStream&& other) noexcept = default;
BinaryStream::~BinaryStream() = default;

void BinaryStream::Write(const Variant& bytes) { Check(m_stream->Write(bytes.Get()), L"BinaryStream.Write"); }

Variant BinaryStream::ReadAll()
{
    constexpr const wchar_t* kSource = L"BinaryStream.ReadAll";
    Check(m_stream->put_Position(0), kSource);
    Variant bytes;
    Check(m_stream->Read(kReadAll, bytes.Put()), kSource);
    return bytes;
}

} // namespace corvane
