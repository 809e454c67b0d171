// What differs by the system that the server runs on.
#pragma once

#include <asio/io_context.hpp>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace server
{

// The arguments of the program in UTF-8, without its name; made of those that main was given.
[[nodiscard]] std::vector<std::string> Arguments(int count, const char* const* arguments);

// Writes UTF-8 text at once, as it is, to the standard output or the standard error; a console shows its letters.
void Print(std::string_view text);
void PrintError(std::string_view text);

// Requests to end the program: SIGINT and SIGTERM; on Windows Ctrl+C, Ctrl+Break, a console that is closed and a user
// who signs off. While this object lives they do not end it by themselves. There is one such object at most.
class Stops
{
public:
    // The context outlives this object.
    explicit Stops(asio::io_context& context);
    Stops(const Stops&) = delete;
    Stops& operator=(const Stops&) = delete;

    // Windows ends a program whose console is closed in any case, but not before this.
    ~Stops();

    // The first request, which may have come already, makes the context call this.
    void WhenAsked(std::function<void()> stop);

private:
    struct Source;
    std::unique_ptr<Source> m_source;
};

} // namespace server
