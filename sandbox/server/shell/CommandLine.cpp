#include "shell/CommandLine.h"

#include "core/Files.h"

#include <charconv>
#include <string_view>

namespace server
{

namespace
{

int ParsePort(std::string_view text)
{
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc{} || end != text.data() + text.size() || port < 0 || port > 65535)
        throw UsageError{"--port takes a number from 0 to 65535, not '" + std::string{text} + "'."};
    return port;
}

void Take(Options& options, std::string_view name, const std::string& value)
{
    if (name == "--port")
        options.port = ParsePort(value);
    else if (name == "--data")
        options.data = PathOf(value);
    else if (name == "--user")
        options.user = value;
    else if (name == "--log")
        options.log = PathOf(value);
    else if (name == "--faults")
        options.faults = PathOf(value);
    else
        throw UsageError{"Unknown argument '" + std::string{name} + "'."};
}

} // namespace

Options ParseCommandLine(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t at = 0; at < arguments.size(); at += 2) {
        const std::string_view name = arguments[at];
        if (name == "--help" || name == "-h") {
            options.help = true;
            return options;
        }
        const bool last = at + 1 == arguments.size();
        if (!last && arguments[at + 1].empty())
            throw UsageError{std::string{name} + " needs a value that is not empty."};
        if (last && name.starts_with("--"))
            throw UsageError{"'" + std::string{name} + "' is unknown or lacks its value."};
        Take(options, name, last ? std::string{} : arguments[at + 1]);
    }
    return options;
}

const char* UsageText()
{
    return "corvane-server [--port N] [--data FOLDER] [--user NAME] [--log FILE] [--faults FILE]\n"
           "\n"
           "  --port N       listen on this port of 127.0.0.1; 0, the default, picks a free one\n"
           "  --data FOLDER  keep uploads and versions there and go on from what it holds;\n"
           "                 without it a temporary folder is used and removed at the end\n"
           "  --user NAME    answer as this user of the seed; without it as the first one\n"
           "  --log FILE     append one JSON object a request\n"
           "  --faults FILE  answer as the rules of this JSON file say; read again at each request\n";
}

} // namespace server
