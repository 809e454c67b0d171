#include "shared/NotificationTexts.h"

#include "support/ServerRules.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr const wchar_t* kLineBreak = L"\r\n";

// The page of a kind and the field that takes the target's id. An activity's is named like a deliverable's.
struct LinkRow
{
    NotifiedKind kind;
    const wchar_t* page;
    const wchar_t* idField;
};
constexpr LinkRow kLinks[] = {
    {NotifiedKind::Activity, L"AD&PID=", L"&DID="},
    {NotifiedKind::Deliverable, L"DD&PID=", L"&DID="},
    {NotifiedKind::RelatedDocument, L"RFD&PID=", L"&RFID="},
    {NotifiedKind::GateDocument, L"GD&PID=", L"&GDID="},
};

bool IsRelated(const NotificationFacts& facts) { return facts.kind == NotifiedKind::RelatedDocument; }
bool IsGate(const NotificationFacts& facts) { return facts.kind == NotifiedKind::GateDocument; }

std::wstring FirstLine(const NotificationFacts& facts)
{
    if (IsRelated(facts))
        return L"A Related Document has been created or updated for the " + facts.projectName + L" project.";
    return L"A new version (Version " + facts.version + L") of the " + facts.term + L" " + facts.targetName +
           L" has been created.";
}

std::wstring VersionLines(const NotificationFacts& facts)
{
    if (IsRelated(facts)) return L"Author: " + facts.author + kLineBreak + L"Date: " + facts.date;
    return L"Version " + facts.version + L" (" + facts.date + L")";
}

} // namespace

std::wstring NotificationLink(const NotificationFacts& facts)
{
    const auto* const known = std::ranges::find(kLinks, facts.kind, &LinkRow::kind);
    const LinkRow row = known == std::end(kLinks) ? LinkRow{facts.kind, L"", L"&DID="} : *known;
    return WithoutCredentials(facts.server) + L"/?P=" + row.page + std::to_wstring(facts.projectId) + row.idField +
           std::to_wstring(facts.targetId);
}

std::wstring NotificationSubject(const NotificationFacts& facts)
{
    std::wstring subject = facts.targetName + L", ";
    subject += IsRelated(facts) ? facts.author : L"Version " + facts.version;
    subject += L" (" + facts.date + L") - ";
    if (IsGate(facts)) subject += facts.gateName + L" - ";
    return subject + facts.projectName;
}

std::wstring NotificationBody(const NotificationFacts& facts)
{
    std::wstring body = FirstLine(facts) + kLineBreak;
    body.append(L"Follow the link to view the ").append(facts.term).append(L".").append(kLineBreak).append(kLineBreak);
    body.append(L"Project: ").append(facts.projectName).append(kLineBreak);
    if (IsGate(facts)) body.append(facts.gateTerm).append(L": ").append(facts.gateName).append(kLineBreak);
    body.append(facts.term).append(L": ").append(facts.targetName).append(kLineBreak);
    body.append(VersionLines(facts)).append(kLineBreak);
    return body.append(L"Link: ").append(NotificationLink(facts)).append(kLineBreak).append(kLineBreak);
}

} // namespace corvane
