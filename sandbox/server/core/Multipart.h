// The body of an upload.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace server
{

struct UploadedFile
{
    std::string name;
    std::string_view bytes; // part of the body it was read from
};

// The first part of a multipart/form-data body. The file name reaches to the last quote of its line, because clients
// write a quote within the name as it is. Nothing when the body does not follow its boundary to the end.
[[nodiscard]] std::optional<UploadedFile> ParseUpload(std::string_view contentType, std::string_view body);

} // namespace server
