// Subject, body and link of the mail that tells a project team about a new version.
#pragma once

#include <cstdint>
#include <string>

namespace corvane
{

// What a notification is about, by the numbers of the interface.
enum class NotifiedKind
{
    Activity = 1,
    Deliverable = 2,
    RelatedDocument = 3,
    GateDocument = 4
};

// The facts of one notification.
struct NotificationFacts
{
    NotifiedKind kind = NotifiedKind::Deliverable;
    std::wstring term;     // the customer's word for the kind
    std::wstring gateTerm; // the customer's word for a gate; gate documents only
    std::int32_t targetId = 0;
    std::wstring targetName;
    std::wstring gateName; // gate documents only
    std::wstring version;  // none of a related document
    std::wstring author;   // stands for the version of a related document
    std::wstring date;     // as it is shown
    std::int32_t projectId = 0;
    std::wstring projectName;
    std::wstring server;
};

// The mail's subject, and its text, with the link in it.
[[nodiscard]] std::wstring NotificationSubject(const NotificationFacts& facts);
[[nodiscard]] std::wstring NotificationBody(const NotificationFacts& facts);

// The address of the target's page on the server, without user name and password.
[[nodiscard]] std::wstring NotificationLink(const NotificationFacts& facts);

} // namespace corvane
