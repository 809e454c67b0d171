// Names and values as a query string or a form carries them, and the parameters of an operation among them.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace server
{

using Fields = std::map<std::string, std::string, std::less<>>;

// "+" is a blank, %XX a byte of UTF-8; a "%" that no two hexadecimal digits follow stays as it is.
[[nodiscard]] std::string DecodeText(std::string_view encoded);

// Names and values of a query string or a form body; of equal names the first counts.
[[nodiscard]] Fields DecodeFields(std::string_view encoded);

// The operation parameters of a request: parameter k travels as field "P" and 2k. Every reader throws ServiceError when
// the parameter is missing or cannot be converted.
class Parameters
{
public:
    Parameters(const Fields& fields, std::string_view operation) : m_fields{fields}, m_operation{operation} {}

    [[nodiscard]] const std::string& Text(int position) const;
    [[nodiscard]] int Number(int position) const;
    [[nodiscard]] bool Truth(int position) const;
    [[nodiscard]] const std::string& Operation() const { return m_operation; }

private:
    const Fields& m_fields;
    std::string m_operation;
};

} // namespace server
