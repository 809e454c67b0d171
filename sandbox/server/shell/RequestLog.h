// The log of the requests as they arrived.
#pragma once

#include "core/Http.h"

#include <filesystem>
#include <fstream>

namespace server
{

// One line of JSON for a request. Bytes of target and headers from 0x80 on are written as the characters of the same
// number, so that encoding the text as Latin-1 gives back exactly what arrived.
[[nodiscard]] std::string LogLine(const Request& request, int status, std::string_view time);

// Appends such a line for each request and flushes it.
class RequestLog
{
public:
    // An empty path writes nothing. Throws std::runtime_error when the file cannot be opened.
    explicit RequestLog(const std::filesystem::path& file);

    // `status` is 0 for a connection that is cut before any answer.
    void Write(const Request& request, int status);

private:
    std::ofstream m_file;
};

} // namespace server
