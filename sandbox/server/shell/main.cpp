#include "core/Dates.h"
#include "core/Seed.h"
#include "core/Site.h"
#include "shell/CommandLine.h"
#include "shell/DataFolder.h"
#include "shell/HttpFront.h"

#include <asio/io_context.hpp>
#include <asio/signal_set.hpp>
#include <csignal>
#include <iostream>

namespace
{

using namespace server;

constexpr int kBadArguments = 2;

int Serve(const Options& options)
{
    asio::io_context context;
    // From here on they end the server in order.
    asio::signal_set stops{context, SIGINT, SIGTERM};
    const DataFolder folder{options.data};
    Site site{Service{nlohmann::json::parse(SeedText()), options.user, Archive{folder.Path()}, LocalTime}};
    RequestLog log{options.log};
    Faults faults{options.faults};
    HttpFront front{context, {[&](const Request& request) { return site.Handle(request); }, log, faults}};
    const int port = front.Bind(options.port);
    stops.async_wait([&](const std::error_code&, int) { front.Stop(); });
    std::cout << "listening on http://127.0.0.1:" << port << std::endl;
    context.run();
    return 0;
}

int RefuseArguments(const char* problem)
{
    std::cerr << "corvane-server: " << problem << "\nSee corvane-server --help.\n";
    return kBadArguments;
}

} // namespace

int main(int count, char** arguments)
{
    try {
        const auto options = ParseCommandLine({arguments + 1, static_cast<std::size_t>(count - 1)});
        if (!options.help) return Serve(options);
        std::cout << UsageText();
        return 0;
    } catch (const UsageError& problem) {
        return RefuseArguments(problem.what());
    } catch (const std::invalid_argument& problem) {
        return RefuseArguments(problem.what());
    } catch (const std::exception& failure) {
        std::cerr << "corvane-server: " << failure.what() << '\n';
        return 1;
    }
}
