#include "platform/PersistedFile.h"

#include "platform/Error.h"
#include "platform/HResult.h"

namespace corvane
{

void SavePersistedCopy(const LateBound& document, const std::wstring& path)
{
    constexpr const wchar_t* kSource = L"SavePersistedCopy";
    constexpr std::int32_t kNotSupported = 438;
    ComPtr<IPersistFile> file;
    if (!document || FAILED(document.Get()->QueryInterface(IID_IPersistFile, &file)))
        throw Error{kNotSupported, kSource, L"Object doesn't support this property or method"};
    Check(file->Save(path.c_str(), FALSE), kSource);
}

} // namespace corvane
