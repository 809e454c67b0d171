// Which scenarios can be played in a host that takes no orders, and how they suit it.
#pragma once

#include "judge/Scenario.h"

#include <string>

namespace verify
{

// Why the scenario's head keeps it out of a host that is not the stand-in; empty where nothing does. What its steps
// want is for the player to judge. The settings of an add-in that was installed before are not changed.
[[nodiscard]] std::string WhyNotInForeignHost(const Scenario& scenario, bool addInIsInstalled);

// What a scenario calls the program that opens mail links, which is the user's choice in any host; and its command
// line, empty where the scenario does not choose one.
constexpr const char* kMailClient = "mail.client";
[[nodiscard]] std::string MailClientOf(const Scenario& scenario);

// The scenario whose checks have this word for a new presentation; the steps are the host's to word.
[[nodiscard]] Scenario Worded(Scenario scenario, const std::string& newName);

} // namespace verify
