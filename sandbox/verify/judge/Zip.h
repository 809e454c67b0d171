// Zip archives, read by what their central directory says and nothing else.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace verify
{

// The parts of an archive by their names. Every part is unpacked and its checksum compared. Throws Failure where the
// archive, called by its name, is not sound.
[[nodiscard]] std::map<std::string, std::string> UnpackZip(const std::string& name, std::string_view bytes);

} // namespace verify
