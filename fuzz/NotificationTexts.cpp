// Texts of any kind end up in the mail, and the link begins with the server, without user name and password.
#include "shared/NotificationTexts.h"
#include "Input.h"
#include "support/ServerRules.h"

void Fuzz(Input& input)
{
    corvane::NotificationFacts facts;
    facts.kind = static_cast<corvane::NotifiedKind>(input.Number(1, 4));
    facts.targetId = input.Number();
    facts.projectId = input.Number();
    for (std::wstring* text : {&facts.term, &facts.gateTerm, &facts.targetName, &facts.gateName, &facts.version,
                               &facts.author, &facts.date, &facts.server})
        *text = input.Text();
    facts.projectName = input.Rest();
    Require(corvane::NotificationSubject(facts).find(facts.projectName) != std::wstring::npos);
    Require(!corvane::NotificationBody(facts).empty());
    Require(corvane::NotificationLink(facts).starts_with(corvane::WithoutCredentials(facts.server)));
}
