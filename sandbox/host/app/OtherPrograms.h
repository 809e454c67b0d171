// The programs beside the host that an add-in may talk to.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "automation/OfferedClass.h"
#include "base/Options.h"
#include "objects/Companions.h"

namespace host
{

// Makes a command line the one that opens mail links, in the registry, while it lives.
class MailLinkCommand
{
public:
    explicit MailLinkCommand(const std::wstring& command);
    MailLinkCommand(const MailLinkCommand&) = delete;
    MailLinkCommand& operator=(const MailLinkCommand&) = delete;
    ~MailLinkCommand() { RemoveTraces(); }

    // Puts back what the registry held before.
    void RemoveTraces() const;

private:
    struct Before
    {
        corvane::Registry::Hive hive;
        std::optional<std::wstring> command; // nothing where there was none
    };

    std::vector<Before> m_before;
};

// What an add-in may talk to beside the host, offered as far as the settings ask for it: "sibling.login" true or false
// for the sibling add-in's login object, "outlook" for the mail program and its mood, "mail.client" for the program
// that opens mail links, "http" own for the host's own HTTP component.
class OtherPrograms
{
public:
    explicit OtherPrograms(const Options& options);
    OtherPrograms(const OtherPrograms&) = delete;
    OtherPrograms& operator=(const OtherPrograms&) = delete;
    ~OtherPrograms();

    // The last mail item that was displayed, or null.
    [[nodiscard]] const MailFields* LastMail() const;

    // What shows mail items to the user.
    void OnMail(std::function<void(const MailFields&)> show);

    // Takes back what was written into the registry. Any thread.
    void RemoveTraces() const;

private:
    void OfferOutlook(MailMood mood, bool running);

    std::optional<ClassObject> m_http;
    std::optional<OfferedClass> m_login;
    std::optional<OfferedClass> m_outlookClass;
    std::optional<MailLinkCommand> m_mailLinks;
    ComPtr<OutlookObject> m_outlook;
    DWORD m_running = 0;
};

} // namespace host
