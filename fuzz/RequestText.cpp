// Every encoded text is plain, and encoding goes code unit by code unit.
#include "webservice/RequestText.h"
#include "Input.h"

#include <algorithm>

void Fuzz(Input& input)
{
    const std::wstring front = input.Text();
    const std::wstring back = input.Rest();
    const std::wstring encoded = corvane::EncodeURLParameter(front);
    Require(std::all_of(encoded.begin(), encoded.end(), [](wchar_t unit) {
        return (unit >= L'0' && unit <= L'9') || (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z') ||
               unit == L'%' || unit == L'+' || (unit >= 0x80 && unit <= 0xFF);
    }));
    Require(encoded + corvane::EncodeURLParameter(back) == corvane::EncodeURLParameter(front + back));
    const std::wstring query = corvane::RequestQuery(L"Op", {front, back});
    Require(std::count(query.begin(), query.end(), L'&') == 3 && std::count(query.begin(), query.end(), L'=') == 4);
}
