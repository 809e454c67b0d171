// Users and projects with everything in them that a version can be recorded for.
#pragma once

#include "core/Version.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace server
{

// Status codes with a meaning of their own; any other number is a status of work that goes on.
inline constexpr int kStatusCompleted = 1;
inline constexpr int kStatusRouted = 6;

// Workflow states of a deliverable or activity.
inline constexpr int kWorkflowRunning = 1;
inline constexpr int kWorkflowApproved = 3;

struct User
{
    int id = 0;
    std::string name;
    std::string email;
    std::string rights; // comma-separated; "RU" allows related documents to be uploaded
    std::vector<std::string> roles;
};

// What the server says after a recording: a text, or an error when the number is not 0.
struct Reply
{
    std::string text;
    int errorNumber = 0;
};

// What everything that keeps versions has. Owner 0 means none.
struct Target
{
    int id = 0;
    std::string name;
    int owner = 0;
    std::vector<int> alsoOfferedTo;
    Reply reply;
    std::vector<Version> versions;

    [[nodiscard]] bool IsOfferedTo(const User& user) const;
};

// What deliverables and activities share.
struct Assignment : Target
{
    int statusCode = 2;
    std::string statusNote;
    int routingType = 1;
    bool enRoute = false;
    bool webForm = false;
    bool authenticationRequired = false;
    bool hasWorkflow = false;
    int workflowState = 0;
    std::vector<int> workflowActors;
};

struct Activity : Assignment
{
    std::string description;
};

struct Deliverable : Assignment
{
    bool workflowRequiresActivities = false;
    std::vector<Activity> activities;
};

struct Stage
{
    int id = 0;
    std::string name;
    bool locked = false;
    std::vector<Deliverable> deliverables;
};

struct GateDocument : Target
{
    std::string statusNote;
    std::vector<int> updaters;
};

struct Gate
{
    int id = 0;
    std::string name;
    std::vector<GateDocument> documents;
};

struct RelatedFile : Target
{
    std::string description;
    std::string author;
    std::string category;
    bool published = false;
};

struct Project
{
    int id = 0;
    std::string name;
    int classId = 0;
    std::string iconSet;
    bool closed = false;
    int leader = 0;
    std::vector<int> team;
    std::vector<int> managers;
    std::vector<int> alsoOfferedTo;
    std::vector<std::string> groups;
    std::vector<Stage> stages;
    std::vector<Gate> gates;
    std::vector<RelatedFile> relatedFiles;
};

struct ProjectClass
{
    int id = 0;
    std::string name;
};

// A target and everything above it; the members that do not apply are null.
struct Place
{
    Project* project = nullptr;
    Stage* stage = nullptr;
    Deliverable* deliverable = nullptr;
    Activity* activity = nullptr;
    Gate* gate = nullptr;
    GateDocument* gateDocument = nullptr;
    RelatedFile* relatedFile = nullptr;

    [[nodiscard]] Target& GetTarget() const;
    // Deliverable or activity; only for a place that is one.
    [[nodiscard]] Assignment& GetAssignment() const;
};

// All that the server knows about users and projects.
struct Catalogue
{
    std::vector<User> users;
    std::vector<ProjectClass> classes;
    std::vector<Project> projects;

    [[nodiscard]] const User* FindUser(std::string_view name) const;
    [[nodiscard]] std::string UserName(int id) const; // empty for 0
    [[nodiscard]] Project* FindProject(int id);
    [[nodiscard]] std::optional<Place> Find(TargetKind kind, int id);

    // Takes a recorded version over: into the target's list, its status and details; a related document that does not
    // exist yet is created. A version whose target or project is unknown is left out.
    void Apply(const Version& version);

    [[nodiscard]] int NextRelatedId() const;
};

[[nodiscard]] bool Contains(const std::vector<int>& ids, int id);

} // namespace server
