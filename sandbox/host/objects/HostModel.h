// What differs in the object models of the hosts.
#pragma once

#include "automation/AutomationObject.h"
#include "base/HostFacts.h"

namespace host
{

// One class of a host's object model.
struct ClassTable
{
    const wchar_t* name;
    IID id;
    std::span<const Member> members;
    std::size_t added = 0; // so many of the members, at the end, exist from version 12 on

    [[nodiscard]] std::span<const Member> Members(int version) const;
};

// The events that a host's application fires.
struct EventTable
{
    IID id;
    DISPID activate;
    DISPID beforeSave;
    DISPID close;
    DISPID closeFinal; // from version 14 on
};

// A host's object model: its classes, each a table of members over the same answers. PowerPoint's members have the
// dispatch ids that its events' users compile in; those of the others are found by name, and their ids need only
// differ.
struct HostModel
{
    ClassTable application;
    ClassTable documents;
    ClassTable document;
    ClassTable windows; // its members are a list's
    ClassTable window;
    const EventTable* events = nullptr; // null: none that anyone here listens to
};

[[nodiscard]] const HostModel& ModelOf(HostKind kind);

} // namespace host
