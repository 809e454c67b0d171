#include "shared/NotificationTexts.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

NotificationFacts FactsOf(NotifiedKind kind, const wchar_t* term)
{
    return {.kind = kind,
            .term = term,
            .gateTerm = L"Door",
            .targetId = 45,
            .targetName = L"Design Review",
            .gateName = L"Launch",
            .version = L"3",
            .author = L"Dana Reyes",
            .date = L"Mar 04, 2013",
            .projectId = 12,
            .projectName = L"Apollo",
            .server = L"http://plan"};
}

struct NotificationCase
{
    NotifiedKind kind;
    const wchar_t* term;
    const wchar_t* subject;
    const wchar_t* body;
};

constexpr NotificationCase kCases[] = {
    {NotifiedKind::Deliverable, L"Work Item", L"Design Review, Version 3 (Mar 04, 2013) - Apollo",
     L"A new version (Version 3) of the Work Item Design Review has been created.\r\n"
     L"Follow the link to view the Work Item.\r\n\r\nProject: Apollo\r\nWork Item: Design Review\r\n"
     L"Version 3 (Mar 04, 2013)\r\nLink: http://plan/?P=DD&PID=12&DID=45\r\n\r\n"},
    {NotifiedKind::Activity, L"Task", L"Design Review, Version 3 (Mar 04, 2013) - Apollo",
     L"A new version (Version 3) of the Task Design Review has been created.\r\n"
     L"Follow the link to view the Task.\r\n\r\nProject: Apollo\r\nTask: Design Review\r\n"
     L"Version 3 (Mar 04, 2013)\r\nLink: http://plan/?P=AD&PID=12&DID=45\r\n\r\n"},
    {NotifiedKind::RelatedDocument, L"Related Document", L"Design Review, 3 (Mar 04, 2013) - Apollo",
     L"A Related Document has been created or updated for the Apollo project.\r\n"
     L"Follow the link to view the Related Document.\r\n\r\nProject: Apollo\r\nRelated Document: Design Review\r\n"
     L"Author: Dana Reyes\r\nDate: Mar 04, 2013\r\nLink: http://plan/?P=RFD&PID=12&RFID=45\r\n\r\n"},
    {NotifiedKind::GateDocument, L"Pass", L"Design Review, Version 3 (Mar 04, 2013) - Launch - Apollo",
     L"A new version (Version 3) of the Pass Design Review has been created.\r\n"
     L"Follow the link to view the Pass.\r\n\r\nProject: Apollo\r\nDoor: Launch\r\nPass: Design Review\r\n"
     L"Version 3 (Mar 04, 2013)\r\nLink: http://plan/?P=GD&PID=12&GDID=45\r\n\r\n"},
};

} // namespace

TEST(NotificationTexts, TellOfEachKindInItsOwnWords)
{
    for (const auto& [kind, term, subject, body] : kCases) {
        EXPECT_EQ(NotificationSubject(FactsOf(kind, term)), subject);
        EXPECT_EQ(NotificationBody(FactsOf(kind, term)), body);
    }
}

TEST(NotificationTexts, LinkAKindThatHasNoPageWithoutOne)
{
    EXPECT_EQ(NotificationLink(FactsOf(NotifiedKind{9}, L"")), L"http://plan/?P=12&DID=45");
}

} // namespace corvane
