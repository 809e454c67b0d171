#include "shell/System.h"

#include <asio/signal_set.hpp>
#include <csignal>
#include <iostream>

namespace server
{

std::vector<std::string> Arguments(int count, const char* const* arguments)
{
    return {arguments + 1, arguments + count};
}

void Print(std::string_view text) { std::cout << text << std::flush; }
void PrintError(std::string_view text) { std::cerr << text << std::flush; }

struct Stops::Source
{
    explicit Source(asio::io_context& context) : signals{context, SIGINT, SIGTERM} {}

    asio::signal_set signals;
};

Stops::Stops(asio::io_context& context) : m_source{std::make_unique<Source>(context)} {}

Stops::~Stops() = default;

void Stops::WhenAsked(std::function<void()> stop)
{
    m_source->signals.async_wait([stop = std::move(stop)](const std::error_code& error, int) {
        if (!error) stop();
    });
}

} // namespace server
