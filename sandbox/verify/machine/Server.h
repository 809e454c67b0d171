// The stand-in server of one scenario.
#pragma once

#include "judge/Request.h"
#include "judge/Scenario.h"
#include "machine/Process.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace verify
{

// corvane-server on data of its own in the scenario's folder, unless the scenario wants none.
class Server
{
public:
    Server(std::filesystem::path program, std::filesystem::path folder) noexcept
        : m_program{std::move(program)}, m_folder{std::move(folder)}
    {}

    // Starts it as the scenario wants it; throws Failure where it does not start.
    void Start(const Scenario& scenario);

    // Ends it in order, as does the destructor.
    void Stop();

    // The address, out of reach where no server runs.
    [[nodiscard]] const std::string& Address() const noexcept { return m_address; }

    [[nodiscard]] std::vector<Request> Requests() const;
    [[nodiscard]] nlohmann::json Versions() const;

    // What it printed, and a line for each request with its status.
    [[nodiscard]] std::string Told() const;

    ~Server() { Stop(); }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

private:
    std::filesystem::path m_program;
    std::filesystem::path m_folder;
    std::string m_address = "http://127.0.0.1:1"; // nothing listens there
    std::optional<Process> m_process;
};

} // namespace verify
