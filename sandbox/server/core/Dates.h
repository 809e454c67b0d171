// The time, and how answers write it.
#pragma once

#include <string>
#include <string_view>

namespace server
{

// Now, in local time: "yyyy-MM-ddTHH:mm:ss".
[[nodiscard]] std::string LocalTime();

// The layouts in which answers carry dates; an empty or malformed date gives an empty text.
[[nodiscard]] std::string ShortDate(std::string_view localTime); // MM/dd/yyyy
[[nodiscard]] std::string
DateWithTime(std::string_view localTime); // MM/dd/yyyy H:m:ss AMPM, for example 03/04/2013 1:05:00 PM

} // namespace server
