#include "core/Dates.h"
#include "core/Seed.h"
#include "core/Site.h"
#include "shell/CommandLine.h"
#include "shell/DataFolder.h"
#include "shell/HttpFront.h"
#include "shell/System.h"

#include <asio/io_context.hpp>

namespace
{

using namespace server;

constexpr int kBadArguments = 2;

int Serve(const Options& options)
{
    asio::io_context context;
    Stops stops{context};
    const DataFolder folder{options.data};
    Site site{Service{nlohmann::json::parse(SeedText()), options.user, Archive{folder.Path()}, LocalTime}};
    RequestLog log{options.log};
    Faults faults{options.faults};
    HttpFront front{context, {[&](const Request& request) { return site.Handle(request); }, log, faults}};
    const int port = front.Bind(options.port);
    stops.WhenAsked([&] { front.Stop(); });
    Print("listening on http://127.0.0.1:" + std::to_string(port) + '\n');
    context.run();
    return 0;
}

int RefuseArguments(const std::string& problem)
{
    PrintError("corvane-server: " + problem + "\nSee corvane-server --help.\n");
    return kBadArguments;
}

} // namespace

int main(int count, char** arguments)
{
    try {
        const auto options = ParseCommandLine(Arguments(count, arguments));
        if (!options.help) return Serve(options);
        Print(UsageText());
        return 0;
    } catch (const UsageError& problem) {
        return RefuseArguments(problem.what());
    } catch (const std::invalid_argument& problem) {
        return RefuseArguments(problem.what());
    } catch (const std::exception& failure) {
        PrintError(std::string{"corvane-server: "} + failure.what() + '\n');
        return 1;
    }
}
