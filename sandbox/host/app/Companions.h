#pragma once

#include <optional>

#include "app/OfferedClass.h"
#include "app/Options.h"
#include "objects/Companions.h"

namespace host
{

// The other programs that an add-in may talk to, offered as far as the settings ask for them: "sibling.login" true or
// false for the sibling add-in's login object, "outlook" new or running for the mail program.
class Companions
{
public:
    explicit Companions(const Options& options);
    Companions(const Companions&) = delete;
    Companions& operator=(const Companions&) = delete;
    ~Companions();

    // The last mail item that was displayed, or null.
    [[nodiscard]] const MailFields* LastMail() const;

    // Takes back what was written into the registry. Any thread.
    void RemoveTraces() const;

private:
    std::optional<OfferedClass> m_login;
    std::optional<OfferedClass> m_outlookClass;
    ComPtr<OutlookObject> m_outlook;
    DWORD m_running = 0;
};

} // namespace host
