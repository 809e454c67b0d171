// One scenario, played in the host that this library is loaded into.
#pragma once

#include <memory>
#include <thread>

#include "companion/Errand.h"
#include "companion/ObjectModelStage.h"

namespace corvane::companion
{

// Plays from when the host has loaded its add-ins, on a thread of its own, and makes the host quit at the end. A
// scenario that failed leaves windows open: they are closed first, and a host that does not end is ended, unless
// somebody else may have something open in it. All but the playing itself belongs to the user-interface thread.
class Performance
{
public:
    Performance(LateBound application, Errand errand);
    Performance(const Performance&) = delete;
    Performance& operator=(const Performance&) = delete;
    ~Performance(); // the host lets go of the player: a scenario that is still played fails

    void AddInsLoaded();

private:
    void Play();
    [[nodiscard]] std::wstring PlayIfSuitable();
    void Abandon();
    void EndBusy(bool hasOthers);
    [[nodiscard]] std::wstring Failed() const;

    Errand m_errand;
    Report m_report;
    ObjectModelStage m_stage;
    bool m_ended = false;
    std::thread m_thread;
};

} // namespace corvane::companion
