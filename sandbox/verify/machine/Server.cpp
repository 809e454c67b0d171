#include "machine/Server.h"

#include "judge/Failure.h"
#include "judge/Text.h"
#include "machine/Files.h"

namespace verify
{
namespace
{

constexpr auto kPatience = std::chrono::seconds{20};
constexpr std::string_view kGreeting = "listening on ";
constexpr std::size_t kToldOfRequest = 300;

} // namespace

void Server::Start(const Scenario& scenario)
{
    const std::string settings = scenario.One("server", "{}");
    if (settings == "none") return;
    const auto faults = m_folder / "faults.json";
    std::filesystem::create_directories(m_folder / "data");
    WriteBytes(m_folder / "data" / "settings.json", settings);
    // Files that rules name lie beside the scenario.
    WriteBytes(faults, Replaced(scenario.One("faults"), "${BESIDE}", SlashedUtf8Of(scenario.file.parent_path())));
    m_process.emplace(Command{.words = {Utf8Of(m_program), "--port", "0", "--data", Utf8Of(m_folder / "data"), "--log",
                                        Utf8Of(m_folder / "requests.log"), "--faults", Utf8Of(faults), "--user",
                                        scenario.One("user", "Dana Reyes")},
                              .output = m_folder / "server.txt",
                              .answers = true});
    const auto first = m_process->FirstLine();
    Require(first.starts_with(kGreeting), "the server did not start");
    m_address = Trimmed(std::string_view{first}.substr(kGreeting.size()));
}

void Server::Stop()
{
    if (!m_process) return;
    m_process->AskToEnd();
    (void)m_process->Wait(kPatience);
    m_process.reset();
}

std::vector<Request> Server::Requests() const { return ReadLog(ReadOrEmpty(m_folder / "requests.log")); }

nlohmann::json Server::Versions() const
{
    const auto text = ReadIfThere(m_folder / "data" / "versions.json");
    return text ? nlohmann::json::parse(*text) : nlohmann::json::array();
}

std::string Server::Told() const
{
    std::string told = ReadableUtf8(ReadOrEmpty(m_folder / "server.txt"));
    try {
        for (const auto& request : Requests())
            told += "\n" + std::to_string(request.status) + " " + RequestLine(request).substr(0, kToldOfRequest);
    } catch (const std::exception& problem) {
        told.append("\nits log cannot be read: ").append(problem.what());
    }
    return told;
}

} // namespace verify
