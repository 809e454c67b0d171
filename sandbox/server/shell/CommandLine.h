// The options of the program.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace server
{

struct Options
{
    bool help = false;
    int port = 0;
    std::filesystem::path data;
    std::string user;
    std::filesystem::path log;
    std::filesystem::path faults;
};

// What is wrong with the command line, as a sentence for the person who typed it.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Takes UTF-8.
[[nodiscard]] Options ParseCommandLine(const std::vector<std::string>& arguments);

[[nodiscard]] const char* UsageText();

} // namespace server
