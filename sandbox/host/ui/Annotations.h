// Names of windows for screen readers, where the system keeps none.
#pragma once

#include <optional>

#include "automation/OfferedClass.h"

namespace host
{

// The names that programs give to windows for screen readers. Where the system has no such annotations, as under Wine,
// they are kept here, and the accessible objects of the windows tell them as those of Windows do.
class Annotations
{
public:
    // Tries the system's own on a window.
    explicit Annotations(HWND window);

private:
    std::optional<ClassObject> m_service;
};

} // namespace host
